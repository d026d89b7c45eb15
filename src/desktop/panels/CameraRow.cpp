#include "desktop/panels/CameraRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"

namespace xrpt {

CameraRow::CameraRow(RVEditControlWnd& frame, QWidget* parent)
    : QWidget(parent),
      picture_(frame),
      fetch_(new QPushButton(Translated(text::kFetchPicture), this)),
      said_(new QLabel(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 6, 0, 0);
  row->addWidget(fetch_, 0, Qt::AlignTop);
  row->addWidget(said_, 1);
  said_->setObjectName(QStringLiteral("muted"));
  said_->setWordWrap(true);
  connect(fetch_, &QPushButton::clicked, this, [this] { Fetch(); });
}

void CameraRow::Refresh() { setVisible(picture_.IsMeant()); }

// One at a time. The button stays what it is meanwhile: a disabled one would lose the keyboard.
void CameraRow::Fetch() {
  if (std::exchange(isFetching_, true)) return;
  said_->setText(Translated(text::kFetchingPicture));
  picture_.Refresh([this](const std::wstring& problem) {
    isFetching_ = false;
    said_->setText(ToQString(problem));
  });
}

}  // namespace xrpt
