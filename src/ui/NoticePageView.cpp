// SPDX-License-Identifier: MIT
#include "ui/NoticePageView.h"

#include "theme/Announcement.h"
#include "ui/EmptyStateView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace songsweep {

namespace {

// As on the page of the empty state.
constexpr int margin = 20;
constexpr int afterPicture = 20;
constexpr int afterTitle = 8;
constexpr int afterText = 20;
constexpr int betweenButtons = 8;

QLabel* centredLabel(const char* name, const char* role, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setProperty("role", QLatin1String(role));
    return label;
}

} // namespace

NoticePageView::NoticePageView(QWidget* parent)
    : QWidget(parent)
    , m_title(centredLabel("noticeTitle", "title", this))
    , m_text(centredLabel("noticeText", "secondary", this))
    , m_row(new QHBoxLayout)
    , m_search(new QPushButton(QStringLiteral("&Search..."), this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("noticePageLayout")); // so that its lengths grow with the font
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(0);
    layout->addStretch(2);
    layout->addWidget(new EmptyStateView(this), 0, Qt::AlignHCenter);
    layout->addSpacing(afterPicture);
    layout->addWidget(m_title);
    layout->addSpacing(afterTitle);
    layout->addWidget(m_text);
    layout->addSpacing(afterText);
    layout->addLayout(m_row);
    layout->addStretch(3);
    m_row->setObjectName(QStringLiteral("noticeButtonLayout"));
    m_row->setSpacing(betweenButtons);
    m_row->addStretch(1);
    m_row->addWidget(m_search);
    m_row->addStretch(1);
    m_search->setObjectName(QStringLiteral("noticeSearchButton"));
    m_search->setAccessibleName(QStringLiteral("Find duplicates"));
    m_search->setDefault(true);
}

void NoticePageView::setMessage(const QString& title, const QString& text) {
    showLive(*m_title, title);
    showLive(*m_text, text);
}

void NoticePageView::setActions(const QStringList& labels) {
    for (QPushButton* button : m_buttons) {
        button->setParent(nullptr);
        button->deleteLater(); // It may be the one that is clicked just now.
    }
    m_buttons.clear();
    QWidget* before = nullptr;
    for (int index = 0; index < labels.size(); ++index) {
        auto* button = new QPushButton(labels.at(index), this);
        button->setObjectName(QStringLiteral("noticePageButton%1").arg(index));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, index] { Q_EMIT actionClicked(index); });
        m_row->insertWidget(m_row->count() - 2, button);
        m_buttons.push_back(button);
        if (before != nullptr) setTabOrder(before, button);
        before = button;
    }
    if (before != nullptr) setTabOrder(before, m_search);
}

} // namespace songsweep
