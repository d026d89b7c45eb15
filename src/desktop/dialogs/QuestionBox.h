// The frame's questions as boxes whose buttons say what they do.
#pragma once

#include "editor/Question.h"

class QWidget;

namespace xrpt {

// The chosen answer's place; Escape and closing the box mean the last one.
std::size_t AskInBox(const Question& question, QWidget* parent);

}  // namespace xrpt
