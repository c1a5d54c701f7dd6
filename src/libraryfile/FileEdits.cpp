// SPDX-License-Identifier: MIT
#include "libraryfile/FileEdits.h"

#include <algorithm>

namespace songsweep {

namespace {

/// Gathers pieces and counts where they come to lie.
class PieceList {
  public:
    void add(FilePiece piece) {
        m_size += piece.range.length + piece.text.size();
        if (!m_pieces.empty() && piece.file != nullptr) {
            FilePiece& last = m_pieces.back();
            if (last.file == piece.file && last.text.empty() && last.range.end() == piece.range.begin) {
                last.range.length += piece.range.length;
                last.text = std::move(piece.text);
                return;
            }
        }
        m_pieces.push_back(std::move(piece));
    }

    std::uint64_t size() const { return m_size; }
    std::vector<FilePiece> take() { return std::move(m_pieces); }

  private:
    std::vector<FilePiece> m_pieces;
    std::uint64_t m_size = 0;
};

} // namespace

FileEdits::Outcome FileEdits::appliedTo(const LibraryFile& file) {
    std::stable_sort(m_edits.begin(), m_edits.end(),
                     [](const Edit& a, const Edit& b) { return a.at < b.at; });
    Outcome outcome;
    PieceList pieces;
    std::uint64_t at = 0;
    const auto keepUntil = [&](std::uint64_t end) {
        if (end > at) pieces.add({&file, {at, end - at}, {}});
        at = end;
    };
    for (Edit& edit : m_edits) {
        keepUntil(edit.at);
        const std::uint64_t begin = pieces.size();
        pieces.add(std::move(edit.piece));
        if (edit.kind == Kind::entry) outcome.entries.push_back({begin, pieces.size() - begin});
        at += edit.removed;
    }
    keepUntil(file.stamp().size);
    outcome.pieces = pieces.take();
    return outcome;
}

} // namespace songsweep
