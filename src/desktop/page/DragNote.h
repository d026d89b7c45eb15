// What stands beside the pointer while a card is drawn, moved or resized: its place or its size, in millimetres.
#pragma once

class QPainter;
class QSize;

namespace xrpt {

class RVEditTemplateWnd;

// Nothing while nothing is dragged. Over a view of that size.
void PaintDragNote(QPainter& painter, const RVEditTemplateWnd& window, const QSize& view);

}  // namespace xrpt
