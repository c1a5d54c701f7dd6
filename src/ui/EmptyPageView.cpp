// SPDX-License-Identifier: MIT
#include "ui/EmptyPageView.h"

#include "theme/Announcement.h"
#include "ui/EmptyStateView.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace songsweep {

namespace {

constexpr int margin = 20;
constexpr int afterPicture = 20;
constexpr int afterTitle = 8;
constexpr int afterFacts = 2;
constexpr int afterText = 20;
constexpr int afterButton = 16;
constexpr int betweenLines = 4;
constexpr int buttonWidth = 112;

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

EmptyPageView::EmptyPageView(QWidget* parent)
    : QWidget(parent)
    , m_title(centredLabel("performLabel", "title", this))
    , m_facts(centredLabel("emptyText", "secondary", this))
    , m_promise(centredLabel("emptyPromise", "secondary", this))
    , m_search(new QPushButton(QStringLiteral("&Search..."), this))
    , m_open(new QPushButton(QStringLiteral("&Open library..."), this))
    , m_below(new QWidget(this))
    , m_choices(new QVBoxLayout)
    , m_hint(centredLabel("emptyHint", "helper", m_below)) {
    setUpLayout();
    setUpButtons();
    setFacts(QStringLiteral("Find the songs you have twice"),
             QStringLiteral("Songsweep reads your iTunes library and shows its duplicates in groups."));
    m_promise->setText(QStringLiteral("Nothing is deleted until you say so."));
    setHint({});
    setWay(Way::search);
}

void EmptyPageView::setUpLayout() {
    auto* layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("emptyLayout")); // so that its lengths grow with the font
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(0);
    layout->addStretch(2);
    layout->addWidget(new EmptyStateView(this), 0, Qt::AlignHCenter);
    layout->addSpacing(afterPicture);
    layout->addWidget(m_title);
    layout->addSpacing(afterTitle);
    layout->addWidget(m_facts);
    layout->addSpacing(afterFacts);
    layout->addWidget(m_promise);
    layout->addSpacing(afterText);
    layout->addWidget(m_search, 0, Qt::AlignHCenter);
    layout->addWidget(m_open, 0, Qt::AlignHCenter);
    layout->addWidget(m_below);
    layout->addStretch(3);
    auto* below = new QVBoxLayout(m_below);
    below->setObjectName(QStringLiteral("emptyBelowLayout"));
    below->setContentsMargins(0, afterButton, 0, 0);
    below->setSpacing(betweenLines);
    below->addLayout(m_choices);
    below->addWidget(m_hint);
    m_choices->setObjectName(QStringLiteral("emptyChoiceLayout"));
    m_choices->setSpacing(0);
}

void EmptyPageView::setUpButtons() {
    m_search->setObjectName(QStringLiteral("emptySearchButton"));
    m_search->setAccessibleName(QStringLiteral("Find duplicates"));
    m_open->setObjectName(QStringLiteral("emptyOpenButton"));
    m_open->setAccessibleName(QStringLiteral("Open library"));
    for (QPushButton* button : {m_search, m_open}) {
        button->setDefault(true);
        button->setProperty("baseWidth", buttonWidth);
    }
}

void EmptyPageView::setFacts(const QString& title, const QString& facts) {
    showLive(*m_title, title);
    showLive(*m_facts, facts);
}

void EmptyPageView::setHint(const QString& hint) {
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
    showBelow();
}

/// An empty place would push the rest up.
void EmptyPageView::showBelow() {
    m_below->setVisible(!m_choiceButtons.empty() || !m_hint->text().isEmpty());
}

void EmptyPageView::setWay(Way way) {
    m_search->setVisible(way == Way::search);
    m_open->setVisible(way == Way::openLibrary);
}

void EmptyPageView::goOn() { (m_open->isHidden() ? m_search : m_open)->click(); }

void EmptyPageView::setChoices(const QStringList& names, const QStringList& toolTips) {
    for (QToolButton* button : m_choiceButtons)
        delete button;
    m_choiceButtons.clear();
    for (int index = 0; index < names.size(); ++index) {
        auto* button = new QToolButton(m_below);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setObjectName(QStringLiteral("emptyChoiceButton%1").arg(index));
        button->setText(names.at(index));
        button->setToolTip(toolTips.value(index));
        button->setAccessibleName(QStringLiteral("Open %1").arg(toolTips.value(index)));
        connect(button, &QToolButton::clicked, this, [this, index] { Q_EMIT choiceClicked(index); });
        m_choices->addWidget(button, 0, Qt::AlignHCenter);
        m_choiceButtons.push_back(button);
    }
    showBelow();
}

} // namespace songsweep
