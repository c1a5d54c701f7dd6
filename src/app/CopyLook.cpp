// SPDX-License-Identifier: MIT
#include "app/CopyLook.h"

#include "platform/Files.h"
#include "scan/Artwork.h"

#include <QBuffer>
#include <QImageReader>
#include <QLocale>
#include <QStringList>

#include <string_view>

namespace songsweep {

namespace {

/// Enough for the panel at twice its size.
constexpr int longestEdge = 256;
/// No cover has more, and a small file can claim any number.
constexpr qint64 mostPixels = 100'000'000;

void takePicture(CopyFinding& finding, const std::string& bytes) {
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > mostPixels) return;
    finding.artworkText =
        QStringLiteral("%1 × %2, ").arg(size.width()).arg(size.height()) + finding.artworkText;
    const QSize shown = size.scaled(longestEdge, longestEdge, Qt::KeepAspectRatio);
    if (shown.width() < size.width()) reader.setScaledSize(shown.expandedTo({1, 1}));
    finding.artwork = reader.read();
}

void findArtwork(CopyFinding& finding, const std::string& path) {
    const Result<std::string> artwork = artworkOf(path);
    if (!artwork) {
        finding.artworkText = QStringLiteral("Not readable");
        return;
    }
    const std::string& bytes = artwork.value();
    finding.artworkHash = std::hash<std::string_view>()(bytes);
    if (bytes.empty()) {
        finding.artworkText = QStringLiteral("None");
        return;
    }
    finding.artworkText =
        QLocale().formattedDataSize(static_cast<qint64>(bytes.size()), 0, QLocale::DataSizeTraditionalFormat);
    takePicture(finding, bytes);
}

} // namespace

void CopyLook::main() {
    auto findings = std::make_shared<std::vector<CopyFinding>>(m_copies.size());
    findPlaylists(*findings);
    for (std::size_t copy = 0; copy < m_copies.size(); ++copy) {
        if (isCancelled()) return;
        if (const auto path = fileOf(m_copies[copy])) findArtwork((*findings)[copy], *path);
    }
    if (!isCancelled()) m_center.post({std::move(findings), this});
}

/// Nothing for one that is missing.
std::optional<std::string> CopyLook::fileOf(const Copy& copy) const {
    const std::lock_guard lock(*m_filesLock);
    if (!m_files.exists(copy.location)) return std::nullopt;
    return m_files.localPath(copy.location);
}

void CopyLook::findPlaylists(std::vector<CopyFinding>& findings) const {
    std::vector<std::string> ids;
    ids.reserve(m_copies.size());
    for (const Copy& copy : m_copies)
        ids.push_back(copy.pid);
    const std::vector<std::vector<std::string>> playlists = m_playlists(ids);
    for (std::size_t copy = 0; copy < playlists.size(); ++copy) {
        QStringList names;
        for (const std::string& name : playlists[copy])
            names << QString::fromStdString(name);
        findings[copy].playlists =
            names.isEmpty() ? QStringLiteral("None") : names.join(QStringLiteral(", "));
    }
}

} // namespace songsweep
