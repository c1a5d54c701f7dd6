// SPDX-License-Identifier: MIT
#include "app/Alerts.h"

#include "app/AlertBox.h"
#include "app/MapGuess.h"
#include "theme/CountedText.h"

#include <QCoreApplication>
#include <QFile>
#include <QPushButton>

namespace songsweep::alerts {

namespace {

QPushButton* addOkButton(QMessageBox& box) {
    QPushButton* ok = box.addButton(QCoreApplication::translate("Alerts", "OK"), QMessageBox::AcceptRole);
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
    auto* box = new AlertBox(QMessageBox::NoIcon,
                             QCoreApplication::translate("Alerts", "No duplicates found."), parent);
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
    QPushButton* help =
        box->addButton(QCoreApplication::translate("Alerts", "&Help"), QMessageBox::ActionRole);
    help->setAutoDefault(false);
    QObject::connect(box, &QMessageBox::finished, box, [box, help, ended = std::move(ended)] {
        ended(box->clickedButton() == help ? secondButton : firstButton);
    });
    box->open();
    return box;
}

QMessageBox* openCantOpenLibrary(QWidget* parent, const QString& reason) {
    return openWarning(parent, QCoreApplication::translate("Alerts", "Can't open the library."), reason);
}

QMessageBox* openCantWriteLibrary(QWidget* parent, const QString& reason) {
    return openWarning(parent, QCoreApplication::translate("Alerts", "Can't write the library."), reason);
}

QMessageBox* openCantExport(QWidget* parent, const QString& reason) {
    return openWarning(parent, QCoreApplication::translate("Alerts", "Can't export the results."), reason);
}

QMessageBox* openSearchWithMap(QWidget* parent, const MapGuess& guess, std::function<void()> accepted) {
    auto* box = new AlertBox(QMessageBox::NoIcon,
                             QCoreApplication::translate("Alerts", "Look for the files there?"), parent);
    const QString found =
        guess.tried == 1
            ? QCoreApplication::translate("Alerts", "The file that was tried is there.")
            : QCoreApplication::translate("Alerts", "%L1 of %L2 files that were tried are there.")
                  .arg(guess.found)
                  .arg(guess.tried);
    box->setInformativeText(QCoreApplication::translate("Alerts", "In the library: %1\nHere: %2\n\n%3")
                                .arg(QFile::decodeName(guess.rule.from.c_str()),
                                     QFile::decodeName(guess.rule.to.c_str()), found));
    QPushButton* cancel =
        box->addButton(QCoreApplication::translate("Alerts", "&Cancel"), QMessageBox::RejectRole);
    QPushButton* search =
        box->addButton(QCoreApplication::translate("Alerts", "&Search again"), QMessageBox::AcceptRole);
    box->setDefaultButton(search);
    box->setEscapeButton(cancel);
    QObject::connect(search, &QPushButton::clicked, box, [accepted = std::move(accepted)] { accepted(); });
    box->open();
    return box;
}

QMessageBox* openNoFilesIn(QWidget* parent, const QString& folder) {
    return openWarning(
        parent, QCoreApplication::translate("Alerts", "None of the files were found there."),
        folder + QLatin1Char('\n') +
            QCoreApplication::translate("Alerts", "Choose the folder that holds the artists' folders."));
}

QMessageBox* openMarksAreLost(QWidget* parent, int marks, std::function<void()> accepted) {
    auto* box = new AlertBox(QMessageBox::Warning,
                             QCoreApplication::translate("Alerts", "Open another library?"), parent);
    box->setInformativeText(countedText("Alerts", "The %1 marks in these results are lost then.",
                                        "The mark in these results is lost then.", marks));
    QPushButton* cancel =
        box->addButton(QCoreApplication::translate("Alerts", "&Cancel"), QMessageBox::RejectRole);
    QPushButton* open =
        box->addButton(QCoreApplication::translate("Alerts", "&Open"), QMessageBox::AcceptRole);
    open->setAutoDefault(false);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(open, &QPushButton::clicked, box, [accepted = std::move(accepted)] { accepted(); });
    box->open();
    return box;
}

} // namespace songsweep::alerts
