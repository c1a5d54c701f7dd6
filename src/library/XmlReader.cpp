// SPDX-License-Identifier: MIT
#include "library/XmlReader.h"

#include "library/Trim.h"

#include <libxml/xmlreader.h>

#include <array>
#include <cstdint>
#include <utility>

namespace songsweep {

namespace {

constexpr int options = XML_PARSE_NOCDATA | XML_PARSE_NOBLANKS | XML_PARSE_NOWARNING | XML_PARSE_NOERROR;
static_assert(options == 0x4160);

std::string_view view(const xmlChar* text) {
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

/// The lengths of the few names that a document has, by their addresses.
///
/// A text reader's names are those of its dictionary: one address a name, for as long as the reader lives.
class NameLengths {
  public:
    std::string_view named(const xmlChar* name) {
        std::string_view& known = m_names[reinterpret_cast<std::uintptr_t>(name) / 8 % m_names.size()];
        if (known.data() != reinterpret_cast<const char*>(name)) known = view(name);
        return known;
    }

  private:
    std::array<std::string_view, 32> m_names;
};

/// Collects the first error of the parser and of the file below it, and keeps libxml2 from printing them.
///
/// libxml2 reports file errors to a handler that each thread has one of; the one before is put back.
class ErrorCollector {
  public:
    ErrorCollector()
        : m_previousContext(xmlStructuredErrorContext)
        , m_previous(xmlStructuredError) {
        xmlSetStructuredErrorFunc(this, &ErrorCollector::collect);
    }
    ErrorCollector(const ErrorCollector&) = delete;
    ErrorCollector& operator=(const ErrorCollector&) = delete;
    ~ErrorCollector() { xmlSetStructuredErrorFunc(m_previousContext, m_previous); }

    void listenTo(xmlTextReaderPtr reader) {
        xmlTextReaderSetStructuredErrorHandler(reader, &ErrorCollector::collect, this);
    }

    ReadError first() const { return m_first.value_or(ReadError{0, "The file cannot be read"}); }

  private:
    static void collect(void* self, xmlErrorPtr error) {
        if (error->level < XML_ERR_ERROR || error->domain == XML_FROM_NAMESPACE) return;
        auto& first = static_cast<ErrorCollector*>(self)->m_first;
        std::string reason(trimmed(error->message ? error->message : ""));
        // An error inside an entity is told again by whatever holds it, last with the document's own line.
        if (!first)
            first = ReadError{error->line, std::move(reason)};
        else if (first->reason == reason)
            first->line = error->line;
    }

    std::optional<ReadError> m_first;
    void* m_previousContext;
    xmlStructuredErrorFunc m_previous;
};

} // namespace

class XmlReader::Parser {
  public:
    explicit Parser(const std::string& path)
        : reader(xmlReaderForFile(path.c_str(), nullptr, options)) {
        if (reader) errors.listenTo(reader);
    }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;
    ~Parser() { xmlFreeTextReader(reader); }

    ErrorCollector errors;
    xmlTextReaderPtr reader;
    NameLengths names;
};

std::unique_ptr<XmlReader> XmlReader::open(const std::string& path) {
    auto parser = std::make_unique<Parser>(path);
    if (!parser->reader) return nullptr;
    return std::unique_ptr<XmlReader>(new XmlReader(std::move(parser)));
}

XmlReader::XmlReader(std::unique_ptr<Parser> parser)
    : m_parser(std::move(parser)) {}
XmlReader::~XmlReader() = default;

bool XmlReader::read(XmlNode& node) {
    node = {};
    // Asked again after an error, libxml2 would give the node at which it failed once more.
    if (m_error) return true;
    const xmlTextReaderPtr reader = m_parser->reader;
    const int result = xmlTextReaderRead(reader);
    if (result == 0) return false;
    if (result < 0) {
        m_error = m_parser->errors.first();
        return true;
    }
    node.type = static_cast<NodeType>(xmlTextReaderNodeType(reader));
    if (node.type == NodeType::text)
        node.value = view(xmlTextReaderConstValue(reader));
    else if (node.type == NodeType::element || node.type == NodeType::endElement)
        node.name = m_parser->names.named(xmlTextReaderConstName(reader));
    return true;
}

} // namespace songsweep
