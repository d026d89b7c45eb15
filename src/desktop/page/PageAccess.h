// The cards of the shown page for screen readers: each with its kind, its content and where it stands.
#pragma once

namespace xrpt {

// Once, before the first page view is asked for.
void InstallPageAccess();

}  // namespace xrpt
