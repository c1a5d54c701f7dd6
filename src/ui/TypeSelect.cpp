// SPDX-License-Identifier: MIT
#include "ui/TypeSelect.h"

#include "library/CaseFolding.h"
#include "platform/Ascii.h"

#include <QApplication>

namespace songsweep {

namespace {

/// Whether a name begins with the text of the key. The first letters tell most names apart without any
/// folding.
bool begins(std::string_view name, std::string_view key) {
    if (name.empty()) return false;
    if (isAscii(name.front()) && isAscii(key.front()) && asciiLower(name.front()) != key.front())
        return false;
    return foldedKey(name).starts_with(key);
}

bool isOneLetterRepeated(const QString& text) {
    return text.size() > 1 && text.count(text.front()) == text.size();
}

} // namespace

void TypeSelect::append(const QString& typed) {
    const bool goesOn =
        m_sinceLastKey.isValid() && m_sinceLastKey.elapsed() <= QApplication::keyboardInputInterval();
    m_beginning = goesOn ? m_beginning + typed : typed;
    m_sinceLastKey.start();
}

int TypeSelect::find(const std::vector<TrackRecord*>& rows, int current, bool currentCounts,
                     const QString& typed) {
    append(typed);
    if (m_beginning.isEmpty() || rows.empty()) return -1;
    const bool steps = isOneLetterRepeated(m_beginning);
    const bool startsHere = !steps && (currentCounts || m_beginning.size() > 1);
    const std::string key = foldedKey((steps ? m_beginning.left(1) : m_beginning).toStdString());
    if (key.empty()) return -1;

    const std::size_t start = current < 0 ? 0 : static_cast<std::size_t>(current) + (startsHere ? 0 : 1);
    for (std::size_t step = 0; step < rows.size(); ++step) {
        const std::size_t row = (start + step) % rows.size();
        if (begins(rows[row]->name, key)) return static_cast<int>(row);
    }
    return -1;
}

} // namespace songsweep
