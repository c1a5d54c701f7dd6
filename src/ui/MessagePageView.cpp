// SPDX-License-Identifier: MIT
#include "ui/MessagePageView.h"

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
constexpr int afterLine = 2;
constexpr int afterText = 20;
constexpr int afterButton = 16;
constexpr int betweenButtons = 8;
constexpr int betweenLines = 4;
constexpr int buttonWidth = 112;

QLabel* centredLabel(const char* role, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setProperty("role", QLatin1String(role));
    return label;
}

/// A button may be the one that is clicked just now.
template <typename Buttons>
void putAway(Buttons& buttons) {
    for (auto* const button : buttons) {
        button->setParent(nullptr);
        button->deleteLater();
    }
    buttons.clear();
}

} // namespace

MessagePageView::MessagePageView(QWidget* parent)
    : QWidget(parent)
    , m_title(centredLabel("title", this))
    , m_text(centredLabel("secondary", this))
    , m_promise(centredLabel("secondary", this))
    , m_row(new QHBoxLayout)
    , m_below(new QWidget(this))
    , m_choices(new QVBoxLayout)
    , m_hint(centredLabel("helper", m_below)) {
    setUpLayout();
    setWords({});
}

/// The layouts have names, so that their lengths grow with the font.
void MessagePageView::setUpLayout() {
    auto* layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("pageLayout"));
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(0);
    layout->addStretch(2);
    layout->addWidget(new EmptyStateView(this), 0, Qt::AlignHCenter);
    layout->addSpacing(afterPicture);
    layout->addWidget(m_title);
    layout->addSpacing(afterTitle);
    layout->addWidget(m_text);
    layout->addSpacing(afterLine);
    layout->addWidget(m_promise);
    layout->addSpacing(afterText);
    layout->addLayout(m_row);
    layout->addWidget(m_below);
    layout->addStretch(3);
    m_row->setObjectName(QStringLiteral("pageButtonLayout"));
    m_row->setSpacing(betweenButtons);
    m_row->addStretch(1);
    m_row->addStretch(1);
    auto* below = new QVBoxLayout(m_below);
    below->setObjectName(QStringLiteral("pageBelowLayout"));
    below->setContentsMargins(0, afterButton, 0, 0);
    below->setSpacing(betweenLines);
    below->addLayout(m_choices);
    below->addWidget(m_hint);
    m_choices->setObjectName(QStringLiteral("pageChoiceLayout"));
    m_choices->setSpacing(0);
}

QString MessagePageView::partName(const char* part) const { return m_prefix + QLatin1String(part); }

void MessagePageView::nameParts(const QString& prefix) {
    m_prefix = prefix;
    m_title->setObjectName(partName("Title"));
    m_text->setObjectName(partName("Text"));
    m_promise->setObjectName(partName("Promise"));
    m_hint->setObjectName(partName("Hint"));
}

/// A line without words leaves its room.
void MessagePageView::setWords(const Words& words) {
    showLive(*m_title, words.title);
    showLive(*m_text, words.text);
    m_promise->setText(words.promise);
    m_promise->setVisible(!words.promise.isEmpty());
    m_hint->setText(words.hint);
    m_hint->setVisible(!words.hint.isEmpty());
    showBelow();
}

/// An empty place would push the rest up.
void MessagePageView::showBelow() {
    m_below->setVisible(!m_choiceButtons.empty() || !m_hint->text().isEmpty());
}

void MessagePageView::setButtons(const std::vector<Button>& buttons, int leading) {
    if (buttons == m_shownButtons && leading == m_leading) return; // one of them may have the focus
    putAway(m_buttons);
    m_shownButtons = buttons;
    m_leading = leading;
    for (const Button& button : buttons) {
        QPushButton* const made = makeButton(button, static_cast<int>(m_buttons.size()));
        if (!m_buttons.empty()) setTabOrder(m_buttons.back(), made);
        m_row->insertWidget(m_row->count() - 1, made);
        m_buttons.push_back(made);
    }
}

QPushButton* MessagePageView::makeButton(const Button& button, int index) {
    auto* made = new QPushButton(button.label, this);
    made->setObjectName(partName("Button") + QString::number(index));
    made->setAccessibleName(button.spoken);
    made->setAutoDefault(false);
    made->setDefault(index == m_leading);
    made->setProperty("baseWidth", buttonWidth);
    connect(made, &QPushButton::clicked, this, [this, index] { Q_EMIT buttonClicked(index); });
    return made;
}

QPushButton& MessagePageView::leadingButton() const {
    return *m_buttons.at(static_cast<std::size_t>(m_leading));
}

void MessagePageView::setChoices(const QStringList& names, const QStringList& toolTips) {
    putAway(m_choiceButtons);
    for (int index = 0; index < names.size(); ++index) {
        auto* button = new QToolButton(m_below);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setObjectName(partName("Choice") + QString::number(index));
        button->setText(names.at(index));
        button->setToolTip(toolTips.value(index));
        button->setAccessibleName(MessagePageView::tr("Open %1").arg(toolTips.value(index)));
        connect(button, &QToolButton::clicked, this, [this, index] { Q_EMIT choiceClicked(index); });
        m_choices->addWidget(button, 0, Qt::AlignHCenter);
        m_choiceButtons.push_back(button);
    }
    showBelow();
}

} // namespace songsweep
