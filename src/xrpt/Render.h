// Reports as pictures and documents: the same painter for all, chosen by the output's ending.
#pragma once

#include <string>

#include "host/DefaultHost.h"
#include "model/RVReport.h"

namespace xrpt {

struct RenderRequest {
  Path output;   // .png, .svg or .pdf
  int page = 0;  // 1 for the first; 0: all of a PDF, the first of anything else
  int dpi = 96;  // of a PNG; documents of lines and texts have none
};

// True for an ending that can be written.
bool IsRenderable(const Path& output);

// The bytes of the file; empty, and a reason, when there is no such page or it cannot be painted.
std::string RenderReport(const RVReport& report, const RenderRequest& request, std::string& reason);

// The host that measures texts and decodes pictures for rendering.
std::unique_ptr<Host> MakeRenderHost(HostOptions options);

}  // namespace xrpt
