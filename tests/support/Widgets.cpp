// SPDX-License-Identifier: MIT
#include "support/Widgets.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace songsweep::test {

namespace {

QString textOf(QAccessible::Text kind, QWidget& widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
    return interface != nullptr ? interface->text(kind) : QString();
}

bool isClipped(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label != nullptr && label->wordWrap()) return label->height() < label->heightForWidth(label->width());
    const QSize needed = control.minimumSizeHint();
    return control.width() < needed.width() || control.height() < needed.height();
}

bool showsText(const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return (button != nullptr && !button->text().isEmpty()) ||
           qobject_cast<const QLabel*>(&control) != nullptr ||
           qobject_cast<const QComboBox*>(&control) != nullptr;
}

QString textShownBy(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return label->buddy() != nullptr ? label->text() : QString();
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button != nullptr ? button->text() : QString();
}

} // namespace

void open(QWidget& window) {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focused = window.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &window, key, modifiers);
}

QStringList tabOrder(QWidget& window) {
    constexpr int moreThanAnyWindowHas = 60;
    QStringList names;
    for (int step = 0; step < moreThanAnyWindowHas; ++step) {
        const QString name = window.focusWidget() != nullptr ? window.focusWidget()->objectName() : QString();
        if (names.contains(name)) break;
        names.append(name);
        press(window, Qt::Key_Tab);
    }
    return names;
}

QString accessibleName(QWidget& widget) { return textOf(QAccessible::Name, widget); }

QString accessibleDescription(QWidget& widget) { return textOf(QAccessible::Description, widget); }

QStringList clippedControls(const QWidget& window) {
    QStringList names;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (control->isVisible() && showsText(*control) && isClipped(*control))
            names.append(control->objectName());
    }
    return names;
}

QStringList filledButtons(const QWidget& window) {
    QStringList texts;
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->isDefault()) texts.append(button->text());
    }
    return texts;
}

QString mnemonics(const QWidget& window) {
    QString letters;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible()) continue;
        const QKeySequence mnemonic = QKeySequence::mnemonic(textShownBy(*control));
        if (!mnemonic.isEmpty()) letters.append(mnemonic.toString().back());
    }
    std::sort(letters.begin(), letters.end());
    return letters;
}

} // namespace songsweep::test
