#pragma once

/// The user's own actions come first: this thread, and those that it starts from now on, get what the others
/// leave. For good, as a thread without rights can't take it back.
void enterBackground();
