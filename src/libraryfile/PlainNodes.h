// SPDX-License-Identifier: MIT
#pragma once

#include "library/NodeReader.h"
#include "libraryfile/TagScanner.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace songsweep {

/// Makes nodes of the tags of a plain property list, the same as libxml2's text reader gives.
///
/// Plain is what iTunes writes: UTF-8, its declaration and document type with nothing inside, the elements of
/// property lists without attributes, blanks alone beside elements, and in texts no references but those of
/// characters and the five that XML knows. The class vouches for a document that it takes to its end; of any
/// other, which is the parser's business, it says no. Constant time a tag but for its text.
class PlainNodes {
  public:
    /// Reads what stands before the first tag.
    explicit PlainNodes(const LibraryFile& file);
    /// Begins behind a tag up to which the file is plain, inside these elements.
    explicit PlainNodes(std::span<const Element> open);

    /// The next tag of the file, or its end; false where the document is not plain.
    bool take(const Tag& tag);
    /// What a property is to a reader; nothing where it is not plain.
    std::optional<XmlProperty> read(const Property& property);

    /// What the last tag added: at most a text and its own. Live until the next is taken.
    std::span<const XmlNode> nodes() const { return {m_nodes.data(), m_count}; }

    /// The elements open behind it.
    std::span<const Element> open() const { return {m_open.data(), m_depth}; }

  private:
    static constexpr std::size_t deepest = 100;
    static constexpr std::size_t longestText = std::size_t{1} << 20;

    bool takeRoot(const Tag& tag);
    bool takeBeginning(const Tag& tag);
    bool takeEnd(const Tag& tag);
    bool takeText(std::string_view raw);
    std::optional<std::string_view> textOf(std::string_view raw);
    void add(const XmlNode& node) { m_nodes[m_count++] = node; }

    std::uint64_t m_rootBegin = 0; // 0 where it is not plain what stands before it
    std::uint64_t m_rootEnd = 0;
    std::array<Element, deepest> m_open{};
    std::size_t m_depth = 0;
    bool m_rootSeen = false;
    std::string m_decoded;
    std::array<XmlNode, 2> m_nodes;
    std::size_t m_count = 0;
};

} // namespace songsweep
