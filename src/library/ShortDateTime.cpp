// SPDX-License-Identifier: MIT
#include "library/ValueFormats.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <clocale>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

icu::UnicodeString patternOf(const icu::DateFormat& format) {
    icu::UnicodeString pattern;
    if (const auto* const simple = dynamic_cast<const icu::SimpleDateFormat*>(&format))
        simple->toPattern(pattern);
    return pattern;
}

bool consistsOf(const icu::UnicodeString& pattern, std::u16string_view characters) {
    for (std::int32_t i = 0; i < pattern.length(); ++i)
        if (characters.find(pattern[i]) == std::u16string_view::npos) return false;
    return true;
}

/// The texts of one format by a number of which they depend alone; some thousand stay.
class DateTexts {
  public:
    void use(std::unique_ptr<icu::DateFormat> format) {
        m_format = std::move(format);
        m_texts.assign(mostTexts, {});
    }
    const icu::DateFormat* format() const { return m_format.get(); }

    const std::string& text(std::int64_t number, std::int64_t secondsSince1970) {
        Known& known = m_texts[static_cast<std::uint64_t>(number) % mostTexts];
        if (known.text.empty() || known.number != number) known = {number, formatted(secondsSince1970)};
        return known.text;
    }

  private:
    static constexpr std::size_t mostTexts = 4093;

    struct Known {
        std::int64_t number = 0;
        std::string text;
    };

    std::string formatted(std::int64_t secondsSince1970) const {
        icu::UnicodeString text;
        m_format->format(static_cast<UDate>(secondsSince1970) * 1000.0, text);
        std::string utf8;
        return text.toUTF8String(utf8);
    }

    std::unique_ptr<icu::DateFormat> m_format;
    std::vector<Known> m_texts; // by their numbers
};

/// A format costs some hundred times what a date costs, so the last one stays until locale or zone change. A
/// date costs as much as a whole row besides, and a report asks for it twice; but days repeat, and so do
/// times of day. So date and time are formatted apart where the locale puts them side by side.
class FormatCache {
  public:
    explicit FormatCache(icu::DateFormat::EStyle timeStyle)
        : m_timeStyle(timeStyle) {}

    std::string text(std::int64_t secondsSince1970) {
        if (!prepare()) return {};
        if (!m_between) return m_whole.text(secondsSince1970, secondsSince1970);
        constexpr std::int64_t secondsOfDay = 86400;
        const std::int64_t local = secondsSince1970 + offset(secondsSince1970);
        const std::int64_t second = (local % secondsOfDay + secondsOfDay) % secondsOfDay;
        return m_dates.text((local - second) / secondsOfDay, secondsSince1970) + *m_between +
               m_times.text(m_timeStyle == icu::DateFormat::kShort ? second / 60 : second, secondsSince1970);
    }

  private:
    /// False where the system has no format.
    bool prepare() {
        const icu::Locale locale = dateLocale();
        std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
        if (!m_zone || !(locale == m_locale) || !(*zone == *m_zone)) {
            m_locale = locale;
            m_zone = std::move(zone);
            makeFormats();
        }
        return m_whole.format() != nullptr;
    }

    void makeFormats() {
        using icu::DateFormat;
        m_whole.use(withZone(DateFormat::createDateTimeInstance(DateFormat::kShort, m_timeStyle, m_locale)));
        m_dates.use(withZone(DateFormat::createDateInstance(DateFormat::kShort, m_locale)));
        m_times.use(withZone(DateFormat::createTimeInstance(m_timeStyle, m_locale)));
        m_between = textBetween();
    }

    std::unique_ptr<icu::DateFormat> withZone(icu::DateFormat* format) const {
        if (format) format->setTimeZone(*m_zone);
        return std::unique_ptr<icu::DateFormat>(format);
    }

    /// What stands between a date and the time of day behind it; nothing where the locale does not write them
    /// so, or its times tell of more than the time of day.
    std::optional<std::string> textBetween() const {
        if (!m_whole.format() || !m_dates.format() || !m_times.format()) return {};
        const icu::UnicodeString whole = patternOf(*m_whole.format());
        const icu::UnicodeString date = patternOf(*m_dates.format());
        const icu::UnicodeString time = patternOf(*m_times.format());
        const std::int32_t length = whole.length() - date.length() - time.length();
        if (date.isEmpty() || length < 0 || !whole.startsWith(date) || !whole.endsWith(time)) return {};
        const icu::UnicodeString between(whole, date.length(), length);
        if (!consistsOf(between, u" ,\u060C\u200F") || !consistsOf(time, u"hHkKmsaBb:. \u202F")) return {};
        std::string utf8;
        return between.toUTF8String(utf8);
    }

    /// Of the zone from universal time, in seconds.
    std::int64_t offset(std::int64_t secondsSince1970) const {
        std::int32_t raw = 0;
        std::int32_t summer = 0;
        UErrorCode status = U_ZERO_ERROR;
        m_zone->getOffset(static_cast<UDate>(secondsSince1970) * 1000.0, false, raw, summer, status);
        return (raw + summer) / 1000;
    }

    icu::DateFormat::EStyle m_timeStyle;
    icu::Locale m_locale;
    std::unique_ptr<icu::TimeZone> m_zone;
    DateTexts m_whole; // by the second
    DateTexts m_dates; // by the day
    DateTexts m_times; // by the minute or second of the day
    std::optional<std::string> m_between;
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
