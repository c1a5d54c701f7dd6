// SPDX-License-Identifier: MIT
//
// The floor of find-benchmark: a program that reads a library by libxml2's text reader, asks for names on
// elements and for values on texts, and keeps nothing.
#include <libxml/xmlreader.h>

#include <cstddef>
#include <cstdio>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) return 2;
    xmlTextReaderPtr reader = xmlReaderForFile(arguments[1], nullptr, 0x4160);
    if (!reader) return 1;
    std::size_t touched = 0;
    while (xmlTextReaderRead(reader) == 1) {
        const int type = xmlTextReaderNodeType(reader);
        if (type == XML_READER_TYPE_ELEMENT || type == XML_READER_TYPE_END_ELEMENT)
            touched += *xmlTextReaderConstName(reader);
        else if (type == XML_READER_TYPE_TEXT)
            touched += *xmlTextReaderConstValue(reader);
    }
    xmlFreeTextReader(reader);
    return touched == 0 ? 1 : 0;
}
