#pragma once

namespace pages {

/// Makes the page library, the panel's document "qrc:/zelpanel.html" and the style sheets known by their
/// resource names. To be called before the first page is loaded; more calls do no harm.
void registerResources();

} // namespace pages
