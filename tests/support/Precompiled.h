// Headers that nearly every test includes, compiled once a test program.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Precompiled.h"
