// A question of the frame in words of its own, for applications that can show more than Yes and No.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace xrpt {

struct Question {
  int textId = 0;            // tells the question apart, for scripts
  std::wstring text;         // the question, names filled in
  std::wstring detail;       // what else there is to know; may be empty
  std::vector<int> answers;  // text ids of the buttons; the last lets everything be, and is what Escape means
  std::size_t yes = 0;       // which of them a plain Yes means
  std::size_t no = 0;        // and a plain No
  bool isAlarming = false;   // something may be lost
  std::size_t usual = 0;     // what Enter means
};

}  // namespace xrpt
