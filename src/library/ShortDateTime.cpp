// SPDX-License-Identifier: MIT
#include "library/ValueFormats.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <clocale>
#include <memory>
#include <string_view>

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

/// A format costs some hundred times what a date costs, so the last one stays until locale or zone change.
class FormatCache {
  public:
    explicit FormatCache(icu::DateFormat::EStyle timeStyle)
        : m_timeStyle(timeStyle) {}

    const icu::DateFormat* format() {
        const icu::Locale locale = dateLocale();
        std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
        if (!m_format || !(locale == m_locale) || !(*zone == m_format->getTimeZone()))
            make(locale, zone.release());
        return m_format.get();
    }

  private:
    void make(const icu::Locale& locale, icu::TimeZone* adoptedZone) {
        m_format.reset(icu::DateFormat::createDateTimeInstance(icu::DateFormat::kShort, m_timeStyle, locale));
        m_locale = locale;
        if (m_format)
            m_format->adoptTimeZone(adoptedZone);
        else
            delete adoptedZone;
    }

    icu::DateFormat::EStyle m_timeStyle;
    std::unique_ptr<icu::DateFormat> m_format;
    icu::Locale m_locale;
};

std::string formatted(std::int64_t secondsSince1970, const icu::DateFormat* format) {
    if (!format) return {};
    icu::UnicodeString text;
    format->format(static_cast<UDate>(secondsSince1970) * 1000.0, text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

} // namespace

std::string shortDateTime(std::int64_t secondsSince1970) {
    thread_local FormatCache cache(icu::DateFormat::kShort);
    return formatted(secondsSince1970, cache.format());
}

std::string dateTimeWithSeconds(std::int64_t secondsSince1970) {
    thread_local FormatCache cache(icu::DateFormat::kMedium);
    return formatted(secondsSince1970, cache.format());
}

} // namespace songsweep
