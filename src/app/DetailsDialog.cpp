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
    for (const std::string& line : lines)
        m_lines << inOneLine(line);
    m_list->setUndoRedoEnabled(false);
    connect(&m_slices, &QTimer::timeout, this, &DetailsDialog::showMore);
    showMore();
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

/// Some thousand lines at a time, so that the dialog answers while a million of them come.
void DetailsDialog::showMore() {
    constexpr qsizetype linesOfSlice = 2000;
    const QStringList slice = m_lines.mid(m_shown, linesOfSlice);
    if (m_shown == 0) {
        m_list->setPlainText(slice.join(QChar::LineFeed));
    } else {
        m_list->appendPlainText(slice.join(QChar::LineFeed));
    }
    m_shown += slice.size();
    m_shown < m_lines.size() ? m_slices.start(0) : m_slices.stop();
}

QString DetailsDialog::text() const { return m_lines.join(QChar::LineFeed); }

} // namespace songsweep
