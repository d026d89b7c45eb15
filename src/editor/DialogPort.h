// What the logic of a dialog asks of the window that shows it.
#pragma once

#include <cstddef>
#include <string>

#include "editor/Question.h"

namespace xrpt {

class DialogPort {
 public:
  virtual ~DialogPort() = default;
  // The chosen answer's place.
  virtual std::size_t Decide(const Question& question) = 0;
  // One sentence for people, or several, a line each.
  virtual void TellFailure(const std::wstring& sentences) = 0;
};

}  // namespace xrpt
