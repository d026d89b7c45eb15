// The default host with what the toolkit does better: pictures, real fonts, clipboard, locale, screen, settings.
#pragma once

#include "host/DefaultHost.h"

namespace xrpt {

// A desktop makes its application object first; without one a windowless one is made.
std::unique_ptr<Host> MakeQtHost(const HostOptions& options);

// Makes the application object that fonts and pictures need, once, for programs that open no window: it needs no
// display. On the main thread. Does nothing when there is one already.
void EnsureHeadlessQt();

}  // namespace xrpt
