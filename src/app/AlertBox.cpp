// SPDX-License-Identifier: MIT
#include "app/AlertBox.h"

#include "theme/DialogFrame.h"
#include "theme/Metrics.h"

#include <QGridLayout>
#include <QLabel>
#include <QShowEvent>

#include <algorithm>

namespace songsweep {

namespace {

constexpr int betweenParagraphs = 12;

/// The box makes its layout anew whenever something is added to it, with an indent before the text and
/// with a spacing of its own.
void tune(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) return;
    const int column = box.icon() == QMessageBox::NoIcon ? 0 : 1;
    if (QLayoutItem* item = grid->itemAtPosition(0, column); item != nullptr && item->spacerItem() != nullptr)
        item->spacerItem()->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    grid->setColumnStretch(column + 1, 1); // the text's
    grid->setVerticalSpacing(scaledLength(betweenParagraphs, &box));
    if (box.icon() == QMessageBox::NoIcon) grid->setHorizontalSpacing(0);
    grid->invalidate();
}

} // namespace

AlertBox::AlertBox(Icon icon, const QString& text, QWidget* parent)
    : QMessageBox(icon, QStringLiteral("Songsweep"), text, NoButton, parent, dialogFrame(Qt::Sheet)) {
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_DeleteOnClose);
}

bool AlertBox::event(QEvent* event) {
    // QMessageBox would set its own width again, so its part is passed over.
    if (event->type() == QEvent::LayoutRequest)
        return QDialog::event(event); // NOLINT(bugprone-parent-virtual-call)
    const bool handled = QMessageBox::event(event);
    if (event->type() == QEvent::FontChange && isVisible()) fit();
    return handled;
}

void AlertBox::showEvent(QShowEvent* event) {
    QMessageBox::showEvent(event);
    if (event->spontaneous()) return;
    fit();
    adjustPosition(parentWidget()); // QMessageBox put a box of another size in the middle of the window
}

void AlertBox::fit() {
    constexpr int leastWidth = 280;
    constexpr int dialogWidth = 440;
    tune(*this);
    setWrapped(false);
    layout()->activate();
    const int natural = std::max(layout()->totalMinimumSize().width(), scaledLength(leastWidth, this));
    const int widest = scaledLength(dialogWidth, this);
    setWrapped(natural > widest);
    layout()->activate();
    const int width = std::min(natural, std::max(widest, layout()->totalMinimumSize().width()));
    setFixedSize(width, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                      : layout()->totalMinimumSize().height());
}

void AlertBox::setWrapped(bool wrapped) {
    for (QLabel* label : findChildren<QLabel*>()) {
        if (label->pixmap().isNull()) label->setWordWrap(wrapped);
    }
}

} // namespace songsweep
