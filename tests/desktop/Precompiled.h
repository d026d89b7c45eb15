// The same with the windows' headers.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "desktop/Precompiled.h"
#include "support/Precompiled.h"
