#include "desktop/windows/PaymentWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace lorvane {

PaymentWindow::PaymentWindow(frmPayment& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kWidth = 38;
  QLineEdit* amount = binder_.Make(screen.txtAmount);
  amount->setAlignment(Qt::AlignRight);
  QFont font = amount->font();
  font.setPointSizeF(font.pointSizeF() * 1.4);
  amount->setFont(font);
  amount->setMinimumWidth(Characters(kWidth));
  auto* hint =
      new QLabel(tr("Enter records the amount and goes on, Esc leaves it as it was."), this);
  hint->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(amount);
  layout->addWidget(hint);
  layout->addStretch(1);
}

}  // namespace lorvane
