// SPDX-License-Identifier: MIT
#include "app/LayoutLengths.h"

#include "theme/Metrics.h"

#include <QLayout>
#include <QWidget>

namespace songsweep {

namespace {

bool isFixed(const QSpacerItem& spacer) {
    const QSizePolicy policy = spacer.sizePolicy();
    return policy.horizontalPolicy() == QSizePolicy::Fixed || policy.verticalPolicy() == QSizePolicy::Fixed;
}

} // namespace

LayoutLengths::LayoutLengths(const QWidget& window) {
    for (QLayout* layout : window.findChildren<QLayout*>()) {
        if (layout->objectName().isEmpty()) continue; // the window's own, of no layout file
        m_layouts.push_back({layout, layout->contentsMargins(), layout->spacing()});
        for (int i = 0; i < layout->count(); ++i) {
            QSpacerItem* spacer = layout->itemAt(i)->spacerItem();
            if (spacer != nullptr && isFixed(*spacer))
                m_spacers.push_back({spacer, spacer->sizeHint(), layout});
        }
    }
}

void LayoutLengths::grow(const QWidget& window) const {
    const auto grown = [&window](int length) { return scaledLength(length, &window); };
    for (const Layout& each : m_layouts) {
        const QMargins& base = each.margins;
        each.layout->setContentsMargins(grown(base.left()), grown(base.top()), grown(base.right()),
                                        grown(base.bottom()));
        each.layout->setSpacing(grown(each.spacing));
    }
    for (const Spacer& each : m_spacers) {
        const QSizePolicy policy = each.item->sizePolicy();
        each.item->changeSize(grown(each.size.width()), grown(each.size.height()), policy.horizontalPolicy(),
                              policy.verticalPolicy());
        each.layout->invalidate();
    }
}

} // namespace songsweep
