// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep::sample {

enum class ByteOrder { little, big };

/// Bytes of a file's header, put together number by number.
class Bytes {
  public:
    explicit Bytes(ByteOrder order)
        : m_order(order) {}

    Bytes& number(std::uint64_t value, int size) {
        for (int place = 0; place < size; ++place) {
            const int shift = 8 * (m_order == ByteOrder::little ? place : size - 1 - place);
            m_text += static_cast<char>(value >> static_cast<unsigned>(shift));
        }
        return *this;
    }
    Bytes& text(std::string_view value) {
        m_text += value;
        return *this;
    }
    Bytes& zeros(std::size_t count) {
        m_text.append(count, '\0');
        return *this;
    }
    const std::string& take() const { return m_text; }

  private:
    ByteOrder m_order;
    std::string m_text;
};

} // namespace songsweep::sample
