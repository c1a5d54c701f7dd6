// SPDX-License-Identifier: MIT
#include "ui/NoticeBarView.h"

#include "theme/Announcement.h"
#include "theme/Icons.h"
#include "theme/Metrics.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace songsweep {

namespace {

constexpr int barHeight = 28;
constexpr int sideMargin = 12;
constexpr int warningSize = 16;
constexpr int crossSize = 14;

QToolButton* flatButton(QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

NoticeBarView::NoticeBarView(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_icon(new QLabel(this))
    , m_label(new QLabel(this))
    , m_close(flatButton(this)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_icon->setProperty("icon", QStringLiteral("warning"));
    m_icon->setProperty("baseIconSize", warningSize);
    m_label->setObjectName(QStringLiteral("noticeLabel"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_close->setObjectName(QStringLiteral("noticeCloseButton"));
    m_close->setIcon(themedIcon(Icon::cancel));
    m_close->setAccessibleName(NoticeBarView::tr("Close message"));
    m_close->setToolTip(NoticeBarView::tr("Close message"));
    connect(m_close, &QToolButton::clicked, this, &NoticeBarView::closed);
    m_layout->addWidget(m_icon);
    m_layout->addWidget(m_label, 1);
    m_layout->addWidget(m_close);
    applyMetrics();
}

void NoticeBarView::setMessage(const QString& text, bool isWarning) {
    m_icon->setVisible(isWarning);
    m_text = text;
    m_label->setAccessibleName(text);
    elide();
    announce(*m_label, text);
}

QString NoticeBarView::message() const { return m_text; }

void NoticeBarView::setActions(const QStringList& labels) {
    for (QToolButton* button : m_buttons) {
        button->setParent(nullptr);
        button->deleteLater(); // It may be the one that is clicked just now.
    }
    m_buttons.clear();
    for (int index = 0; index < labels.size(); ++index) {
        QToolButton* button = flatButton(this);
        button->setText(labels.at(index));
        button->setObjectName(QStringLiteral("noticeButton%1").arg(index));
        connect(button, &QToolButton::clicked, this, [this, index] { Q_EMIT actionClicked(index); });
        m_layout->insertWidget(m_layout->count() - 1, button);
        m_buttons.push_back(button);
    }
    QWidget* before = nullptr;
    for (QToolButton* button : m_buttons) {
        if (before != nullptr) setTabOrder(before, button);
        before = button;
    }
    if (before != nullptr) setTabOrder(before, m_close);
}

void NoticeBarView::elide() {
    const QString shown = m_label->fontMetrics().elidedText(m_text, Qt::ElideRight, m_label->width());
    m_label->setText(shown);
    m_label->setToolTip(shown == m_text ? QString() : m_text);
}

void NoticeBarView::applyMetrics() {
    const auto grown = [this](int length) { return scaledLength(length, this); };
    setFixedHeight(grown(barHeight));
    m_layout->setContentsMargins(grown(sideMargin), 0, grown(4), 1);
    m_layout->setSpacing(grown(4));
    m_close->setIconSize(QSize(grown(crossSize), grown(crossSize)));
}

void NoticeBarView::paintEvent(QPaintEvent*) {
    const ThemeColors& colors = themeColors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.header);
    painter.fillRect(0, height() - 1, width(), 1, colors.line);
}

void NoticeBarView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    m_layout->activate();
    elide();
}

void NoticeBarView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    applyMetrics();
    elide();
}

} // namespace songsweep
