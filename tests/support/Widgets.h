// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <stdexcept>
#include <string>

/// What tests of windows need: finding controls, opening, pressing, looking.
namespace songsweep::test {

/// The child of that object name; an exception, which fails the test, where there is none.
template <class Widget>
Widget& child(const QWidget& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(std::string("no control named ") + name);
    return *found;
}

/// Shows the window and waits until it is the active one.
void open(QWidget& window);

/// Presses and releases a key where the focus is.
void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// The object names of the controls that Tab visits, from the one that has the focus until it comes around.
QStringList tabOrder(QWidget& window);

/// The name and the description that assistive technology is told.
QString accessibleName(QWidget& widget);
QString accessibleDescription(QWidget& widget);

/// The object names of visible labels, buttons and combo boxes that are smaller than their text needs.
QStringList clippedControls(const QWidget& window);

/// The texts of the push buttons that are filled because Return presses them.
QStringList filledButtons(const QWidget& window);

/// The letters of all mnemonics of visible labels and buttons, sorted.
QString mnemonics(const QWidget& window);

} // namespace songsweep::test
