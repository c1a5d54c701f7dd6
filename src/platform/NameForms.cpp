// SPDX-License-Identifier: MIT
#include "platform/NameForms.h"

#include "platform/Ascii.h"
#include "platform/Utf8.h"

#include <sys/stat.h>
#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

bool namesSomething(const std::string& path) {
    struct stat attributes {};
    return ::stat(path.c_str(), &attributes) == 0;
}

std::string normalized(const icu::Normalizer2* form, std::string_view name, UErrorCode& status) {
    std::string result;
    if (U_FAILURE(status)) return result;
    icu::StringByteSink<std::string> sink(&result);
    form->normalizeUTF8(0, icu::StringPiece(name.data(), static_cast<int32_t>(name.size())), sink, nullptr,
                        status);
    return result;
}

std::array<std::string, 3> formsOf(std::string_view name) {
    // Bytes that are no text have no other form; normalised, they would name another file.
    if (!isUtf8(name)) return {std::string(name)};
    UErrorCode status = U_ZERO_ERROR;
    std::string composed = normalized(icu::Normalizer2::getNFCInstance(status), name, status);
    std::string decomposed = normalized(icu::Normalizer2::getNFDInstance(status), name, status);
    return {std::string(name), std::move(composed), std::move(decomposed)};
}

/// Appends to `path` the form of `name` that exists below it; false where none does.
bool appendExistingForm(std::string& path, std::string_view name) {
    const std::size_t length = path.size();
    for (const std::string& form : formsOf(name)) {
        if (form.empty()) continue;
        path.resize(length);
        path += form;
        if (namesSomething(path)) return true;
    }
    return false;
}

} // namespace

std::optional<std::string> existingInOtherForm(std::string_view path) {
    std::string found;
    found.reserve(path.size() + 16);
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string_view name = path.substr(start, end - start);
        if (isAscii(name))
            found += name;
        else if (!appendExistingForm(found, name))
            return std::nullopt;
        if (end < path.size()) found += '/';
        start = end + 1;
    }
    if (!namesSomething(found)) return std::nullopt;
    return found;
}

std::string composedForm(std::string_view text) {
    if (isAscii(text) || !isUtf8(text)) return std::string(text);
    UErrorCode status = U_ZERO_ERROR;
    std::string composed = normalized(icu::Normalizer2::getNFCInstance(status), text, status);
    return U_FAILURE(status) ? std::string(text) : composed;
}

} // namespace songsweep
