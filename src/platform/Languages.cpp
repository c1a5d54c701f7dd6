// SPDX-License-Identifier: MIT
#include "platform/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace songsweep {

namespace {

constexpr QLatin1String folder(":/translations");
constexpr QLatin1String begin("songsweep_");
constexpr QLatin1String end(".qm");

std::vector<std::string> availableLanguages() {
    std::vector<std::string> languages;
    for (const QString& name : QDir(folder).entryList({begin + QLatin1Char('*') + end}))
        languages.push_back(name.mid(begin.size()).chopped(end.size()).toStdString());
    return languages;
}

std::vector<std::string> preferredLanguages() {
    std::vector<std::string> names;
    for (const QString& name : QLocale::system().uiLanguages())
        names.push_back(name.toStdString());
    return names;
}

/// The application owns it.
void install(QCoreApplication& application, const QString& file, const QString& place) {
    auto* translator = new QTranslator(&application);
    if (translator->load(file, place))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

std::optional<std::string> chosenLanguage(const std::vector<std::string>& preferred,
                                          const std::vector<std::string>& available) {
    for (const std::string& name : preferred) {
        const std::string language = name.substr(0, name.find_first_of("-_.@"));
        if (language == "en" || language == "C" || language == "POSIX") return {};
        if (std::ranges::find(available, language) != available.end()) return language;
    }
    return {};
}

void installLanguage(QCoreApplication& application) {
    const auto language = chosenLanguage(preferredLanguages(), availableLanguages());
    if (!language) return;
    const QString name = QString::fromStdString(*language);
    install(application, QStringLiteral("qtbase_") + name,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(application, begin + name, folder);
}

} // namespace songsweep
