// SPDX-License-Identifier: MIT
#include "library/ValueFormats.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <clocale>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

namespace {

/// The locale for dates: the category's own where the system has one, for many users read English texts and
/// their country's dates.
icu::Locale dateLocale() {
    const char* const name = std::setlocale(LC_TIME, nullptr);
    const std::string_view category = name ? name : "";
    if (category.empty() || category == "POSIX" || category.starts_with("C"))
        return icu::Locale::getDefault();
    return icu::Locale::createCanonical(name);
}

std::string formatted(std::int64_t secondsSince1970, const icu::DateFormat& format) {
    icu::UnicodeString text;
    format.format(static_cast<UDate>(secondsSince1970) * 1000.0, text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

/// A format costs some hundred times what a date costs, so the last one stays until locale or zone change. A
/// date costs as much as a whole row besides, and a report asks for it twice, so some thousand texts stay
/// too.
class FormatCache {
  public:
    explicit FormatCache(icu::DateFormat::EStyle timeStyle)
        : m_timeStyle(timeStyle) {}

    std::string text(std::int64_t secondsSince1970) {
        const icu::DateFormat* const format = this->format();
        if (!format) return {};
        m_texts.resize(mostTexts);
        Known& known = m_texts[static_cast<std::uint64_t>(secondsSince1970) % mostTexts];
        if (known.text.empty() || known.seconds != secondsSince1970)
            known = {secondsSince1970, formatted(secondsSince1970, *format)};
        return known.text;
    }

  private:
    static constexpr std::size_t mostTexts = 8191;

    struct Known {
        std::int64_t seconds = 0;
        std::string text;
    };

    const icu::DateFormat* format() {
        const icu::Locale locale = dateLocale();
        std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
        if (!m_format || !(locale == m_locale) || !(*zone == m_format->getTimeZone()))
            make(locale, zone.release());
        return m_format.get();
    }

    void make(const icu::Locale& locale, icu::TimeZone* adoptedZone) {
        m_format.reset(icu::DateFormat::createDateTimeInstance(icu::DateFormat::kShort, m_timeStyle, locale));
        m_locale = locale;
        m_texts.clear();
        if (m_format)
            m_format->adoptTimeZone(adoptedZone);
        else
            delete adoptedZone;
    }

    icu::DateFormat::EStyle m_timeStyle;
    std::unique_ptr<icu::DateFormat> m_format;
    icu::Locale m_locale;
    std::vector<Known> m_texts; // by their seconds
};

} // namespace

std::string shortDateTime(std::int64_t secondsSince1970) {
    thread_local FormatCache cache(icu::DateFormat::kShort);
    return cache.text(secondsSince1970);
}

std::string dateTimeWithSeconds(std::int64_t secondsSince1970) {
    thread_local FormatCache cache(icu::DateFormat::kMedium);
    return cache.text(secondsSince1970);
}

} // namespace songsweep
