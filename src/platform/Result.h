// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace songsweep {

/// An expected failure: what kind it is, and a sentence for the user or the log (UTF-8, no full stop).
struct Error {
    enum class Code {
        notFound,
        noPermission,
        notSupported,
        invalid,
        inputOutput,
        noSpace,
        alreadyExists,
        busy,
        cancelled,
        failed
    };

    Code code = Code::failed;
    std::string message;
};

/// A value, or the reason why there is none. Expected failures travel this way; exceptions are for defects.
///
///     Result<LibraryIndex> index = readIndex(path);
///     if (!index) return index.error();
///     use(index.value());
template <class Value>
class [[nodiscard]] Result {
  public:
    Result(Value value)
        : m_state(std::in_place_index<0>, std::move(value)) {}
    Result(Error error)
        : m_state(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const { return m_state.index() == 0; }
    bool hasValue() const { return m_state.index() == 0; }
    Value& value() & { return std::get<0>(m_state); }
    const Value& value() const& { return std::get<0>(m_state); }
    Value&& value() && { return std::get<0>(std::move(m_state)); }
    const Error& error() const { return std::get<1>(m_state); }

  private:
    std::variant<Value, Error> m_state;
};

/// The result of an action that yields nothing but its success.
template <>
class [[nodiscard]] Result<void> {
  public:
    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
        , m_failed(true) {}

    explicit operator bool() const { return !m_failed; }
    bool hasValue() const { return !m_failed; }
    const Error& error() const { return m_error; }

  private:
    Error m_error;
    bool m_failed = false;
};

} // namespace songsweep
