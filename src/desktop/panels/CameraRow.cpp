#include "desktop/panels/CameraRow.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"

namespace xrpt {

CameraRow::CameraRow(RVEditControlWnd& frame, QWidget* parent)
    : QWidget(parent),
      picture_(frame),
      fetch_(new QPushButton(Translated(text::kFetchPicture), this)),
      said_(new QLabel(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  column->addWidget(fetch_, 0, Qt::AlignLeft);
  column->addWidget(said_);
  said_->setObjectName(QStringLiteral("muted"));
  said_->setWordWrap(true);
  said_->hide();
  connect(fetch_, &QPushButton::clicked, this, [this] { Fetch(); });
}

void CameraRow::Refresh() { setVisible(picture_.IsMeant()); }

// One at a time: the button waits for the answer.
void CameraRow::Fetch() {
  fetch_->setEnabled(false);
  Tell(Translated(text::kFetchingPicture));
  picture_.Refresh([this](const std::wstring& problem) {
    fetch_->setEnabled(true);
    Tell(ToQString(problem));
  });
}

void CameraRow::Tell(const QString& said) {
  said_->setText(said);
  said_->setVisible(!said.isEmpty());
}

}  // namespace xrpt
