// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <stdexcept>
#include <string>

namespace songsweep::test {

/// As long as it lives, the program speaks a language of translations/.
class Speaking {
  public:
    explicit Speaking(const std::string& language) {
        const QString file = QStringLiteral("songsweep_%1.qm").arg(QString::fromStdString(language));
        if (!m_translator.load(file, QStringLiteral(":/translations")))
            throw std::runtime_error("no " + language);
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Speaking() { QCoreApplication::removeTranslator(&m_translator); }
    Speaking(const Speaking&) = delete;
    Speaking& operator=(const Speaking&) = delete;

  private:
    QTranslator m_translator;
};

} // namespace songsweep::test
