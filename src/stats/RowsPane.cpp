#include "stats/RowsPane.h"

#include <QLabel>
#include <QVBoxLayout>

#include "stats/DataTableView.h"
#include "stats/KeptRowsOffer.h"

namespace vexa {

RowsPane::RowsPane(const DataList& list, QWidget* parent)
    : QWidget(parent),
      offer(new KeptRowsOffer(this)),
      table(new DataTableView(list, this)),
      notice(new QLabel(this)) {
  notice->setObjectName(QStringLiteral("Notice"));
  notice->setTextFormat(Qt::PlainText);
  notice->setWordWrap(true);
  auto* const lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  lines->setSizeConstraint(QLayout::SetNoConstraint);
  lines->addWidget(offer);
  lines->addWidget(table, 1);
  lines->addWidget(notice);
  ShowNotice(QString());
}

void RowsPane::ShowNotice(const QString& text) {
  notice->setText(text);
  notice->setVisible(!text.isEmpty());
}

QSize RowsPane::sizeHint() const {
  return table->sizeHint();
}

QSize RowsPane::minimumSizeHint() const {
  return table->minimumSizeHint();
}

}  // namespace vexa
