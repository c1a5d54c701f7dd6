// SPDX-License-Identifier: MIT
#include "app/Alerts.h"

#include "app/AlertBox.h"
#include "app/MapGuess.h"

#include <QFile>
#include <QPushButton>

namespace songsweep::alerts {

namespace {

QPushButton* addOkButton(QMessageBox& box) {
    QPushButton* ok = box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    return ok;
}

QMessageBox* openWarning(QWidget* parent, const QString& message, const QString& reason) {
    auto* box = new AlertBox(QMessageBox::Warning, message, parent);
    box->setInformativeText(reason);
    addOkButton(*box);
    box->open();
    return box;
}

} // namespace

QMessageBox* openNoDuplicates(QWidget* parent, const QString& explanation) {
    auto* box = new AlertBox(QMessageBox::NoIcon, QStringLiteral("No duplicates found."), parent);
    box->setInformativeText(explanation);
    addOkButton(*box);
    box->open();
    return box;
}

QMessageBox* openCantAccess(QWidget* parent, const QString& message, const QString& reason,
                            std::function<void(int)> ended) {
    auto* box = new AlertBox(QMessageBox::Warning, message, parent);
    box->setInformativeText(reason);
    addOkButton(*box);
    QPushButton* help = box->addButton(QStringLiteral("&Help"), QMessageBox::ActionRole);
    help->setAutoDefault(false);
    QObject::connect(box, &QMessageBox::finished, box, [box, help, ended = std::move(ended)] {
        ended(box->clickedButton() == help ? secondButton : firstButton);
    });
    box->open();
    return box;
}

QMessageBox* openCantOpenLibrary(QWidget* parent, const QString& reason) {
    return openWarning(parent, QStringLiteral("Can't open the library."), reason);
}

QMessageBox* openCantWriteLibrary(QWidget* parent, const QString& reason) {
    return openWarning(parent, QStringLiteral("Can't write the library."), reason);
}

QMessageBox* openCantExport(QWidget* parent, const QString& reason) {
    return openWarning(parent, QStringLiteral("Can't export the results."), reason);
}

QMessageBox* openSearchWithMap(QWidget* parent, const MapGuess& guess, std::function<void()> accepted) {
    auto* box = new AlertBox(QMessageBox::NoIcon, QStringLiteral("Look for the files there?"), parent);
    const QString found =
        guess.tried == 1
            ? QStringLiteral("The file that was tried is there.")
            : QStringLiteral("%L1 of %L2 files that were tried are there.").arg(guess.found).arg(guess.tried);
    box->setInformativeText(QStringLiteral("In the library: %1\nHere: %2\n\n%3")
                                .arg(QFile::decodeName(guess.rule.from.c_str()),
                                     QFile::decodeName(guess.rule.to.c_str()), found));
    QPushButton* cancel = box->addButton(QStringLiteral("&Cancel"), QMessageBox::RejectRole);
    QPushButton* search = box->addButton(QStringLiteral("&Search again"), QMessageBox::AcceptRole);
    box->setDefaultButton(search);
    box->setEscapeButton(cancel);
    QObject::connect(search, &QPushButton::clicked, box, [accepted = std::move(accepted)] { accepted(); });
    box->open();
    return box;
}

QMessageBox* openNoFilesIn(QWidget* parent, const QString& folder) {
    return openWarning(parent, QStringLiteral("None of the files were found there."),
                       folder + QStringLiteral("\nChoose the folder that holds the artists' folders."));
}

QMessageBox* openMarksAreLost(QWidget* parent, int marks, std::function<void()> accepted) {
    auto* box = new AlertBox(QMessageBox::Warning, QStringLiteral("Open another library?"), parent);
    box->setInformativeText(marks == 1
                                ? QStringLiteral("The mark in these results is lost then.")
                                : QStringLiteral("The %L1 marks in these results are lost then.").arg(marks));
    QPushButton* cancel = box->addButton(QStringLiteral("&Cancel"), QMessageBox::RejectRole);
    QPushButton* open = box->addButton(QStringLiteral("&Open"), QMessageBox::AcceptRole);
    open->setAutoDefault(false);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(open, &QPushButton::clicked, box, [accepted = std::move(accepted)] { accepted(); });
    box->open();
    return box;
}

} // namespace songsweep::alerts
