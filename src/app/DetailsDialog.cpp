// SPDX-License-Identifier: MIT
#include "app/DetailsDialog.h"

#include "theme/DialogFrame.h"
#include "theme/Metrics.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace songsweep {

namespace {

constexpr int firstWidth = 640;
constexpr int firstHeight = 400;
constexpr int margin = 8;

/// A name may hold line breaks.
QString inOneLine(const std::string& text) {
    QString line = QString::fromStdString(text);
    line.replace(QChar::LineFeed, QChar::Space).replace(QChar::CarriageReturn, QChar::Space);
    return line;
}

} // namespace

DetailsDialog::DetailsDialog(const QString& title, const std::vector<std::string>& lines, QWidget* parent)
    : QDialog(parent, dialogFrame(Qt::Sheet))
    , m_list(new QPlainTextEdit(this)) {
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    m_list->setObjectName(QStringLiteral("detailsList"));
    m_list->setAccessibleName(title);
    m_list->setReadOnly(true);
    m_list->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_list->setTabChangesFocus(true);
    m_list->document()->setDocumentMargin(scaledLength(margin, this));
    m_list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QStringList all;
    for (const std::string& line : lines)
        all << inOneLine(line);
    m_list->setPlainText(all.join(QChar::LineFeed));
    setUpButtons();
    resize(scaledLength(firstWidth, this), scaledLength(firstHeight, this));
}

void DetailsDialog::setUpButtons() {
    auto* buttons = new QDialogButtonBox(this);
    auto* close = buttons->addButton(DetailsDialog::tr("&Close"), QDialogButtonBox::RejectRole);
    auto* copy = buttons->addButton(DetailsDialog::tr("Co&py"), QDialogButtonBox::ActionRole);
    close->setObjectName(QStringLiteral("detailsCloseButton"));
    copy->setObjectName(QStringLiteral("detailsCopyButton"));
    copy->setAutoDefault(false);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(text()); });
    layout()->addWidget(buttons);
}

QString DetailsDialog::text() const { return m_list->toPlainText(); }

} // namespace songsweep
