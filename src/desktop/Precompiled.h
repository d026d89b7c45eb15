// Headers that nearly every window of ours includes, compiled once for the desktop.
#pragma once

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QString>
#include <QTimer>
#include <QToolButton>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
