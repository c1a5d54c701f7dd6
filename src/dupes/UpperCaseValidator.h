// SPDX-License-Identifier: MIT
#pragma once

#include <QValidator>

namespace songsweep {

/// Accepts every text and turns what is typed into upper case.
class UpperCaseValidator : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*position*/) const override {
        text = text.toUpper();
        return Acceptable;
    }
};

} // namespace songsweep
