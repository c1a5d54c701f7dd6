// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/Element.h"
#include "libraryfile/FileWindow.h"
#include "libraryfile/Property.h"
#include "libraryfile/XmlText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// One tag of a document, or its end, and the raw bytes between the tag before it and this one.
struct Tag {
    enum class Kind : std::uint8_t { open, close, empty, endOfDocument };

    Kind kind = Kind::endOfDocument;
    Element element = Element::other;
    std::uint64_t begin = 0; ///< offset of its "<"
    std::uint64_t end = 0;   ///< offset behind its ">"
    std::string_view text;   ///< before the tag; valid until the next one is asked for
};

/// Finds the tags of an XML file in UTF-8 in one pass.
///
/// It looks for "<" only and hands over names and byte offsets, which makes it several times faster than a
/// parser. It sees that tags match, that nothing ends too early and that there is one root; it does not look
/// into attributes and does not check characters: a parser must check the file before anything is built on
/// that. Comments, processing instructions and CDATA sections are part of the text between tags. Entities
/// that the document type declares are collected; one that holds markup is refused, as the tags inside would
/// go unseen.
class TagScanner {
  public:
    explicit TagScanner(const LibraryFile& file);
    /// Begins behind a tag up to which the file was scanned, inside these elements, none of another name.
    TagScanner(const LibraryFile& file, std::uint64_t offset, std::vector<Element> open);

    /// Moves on to the next tag, or to the end of the document. False where the document is not well formed
    /// or cannot be read; `error` says why.
    bool next(Tag& tag);

    /// Moves on behind the property that is next inside a dictionary, see Property.h. False, and nothing is
    /// taken, where something else is next.
    bool takeProperty(Property& property);

    /// Why the last `next` failed, with the line where there is one.
    Error error() const;

    const XmlEntities& entities() const { return m_entities; }

    /// An error at the offset, with its line counted from 1.
    Error errorAt(std::uint64_t offset, const std::string& reason) const;

  private:
    static constexpr std::size_t deepestNesting = 256;

    bool start();
    void finishTag(Tag& tag, const char* tagEnd);
    bool checkDeclaration(std::string_view declaration);
    bool findTag();
    bool takeUsualTag(Tag& tag);
    bool skipMarkup();
    bool skipPast(std::string_view mark, std::size_t from);
    bool skipDocumentType();
    bool skipDeclaration(bool isEntity);
    bool declareEntity(std::string_view declaration);
    bool findTagEnd();
    bool readTag(Tag& tag);
    bool openElement(Element element, std::string_view name);
    bool closeElement(Element element, std::string_view name);
    bool finish();
    bool noTextSinceLastTag() const;
    bool more();
    bool need(std::size_t count);
    bool fail(std::string reason);
    bool cutOff(const std::string& where);
    std::string openName() const;
    std::uint64_t offsetOf(const char* at) const {
        return m_window.offset() + static_cast<std::uint64_t>(at - m_window.begin());
    }

    const LibraryFile& m_file;
    FileWindow m_window;
    XmlEntities m_entities;
    const char* m_text = nullptr;   // behind the last tag
    const char* m_at = nullptr;     // where the search goes on; at the tag once it is found
    const char* m_tagEnd = nullptr; // at the tag's ">"
    std::vector<Element> m_open;
    std::vector<std::string> m_otherNames; // of the open elements of other names
    bool m_started = false;
    bool m_rootSeen = false;
    std::uint64_t m_failedAt = 0;
    std::string m_failure;
};

} // namespace songsweep
