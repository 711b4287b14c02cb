#pragma once

namespace AppResources {

/// Makes style sheet and translations known by ":/app/...". More calls do no harm.
void ensure();

} // namespace AppResources
