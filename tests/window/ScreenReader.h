// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"
#include "support/PrivateBus.h"

#include <QDBusConnection>
#include <QRect>
#include <QString>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace songsweep::test {

/// Tells what a running program's windows show, as a screen reader learns it: over the accessibility bus,
/// from another process.
///
/// It only asks and listens to no event, so that the program gets its keys as without a screen reader. A
/// program that starts while this lives introduces itself. Every question costs a call or more over the bus.
class ScreenReader {
  public:
    explicit ScreenReader(const PrivateBus& bus);
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ~ScreenReader();

    /// Whether a program has introduced itself.
    bool hasProgram() const { return !m_registry.callsOf(QStringLiteral("Embed")).empty(); }

    /// The texts and names of all that is to be seen, the cells of the table left out.
    std::vector<std::string> texts() const;
    bool shows(const std::string& text) const;
    /// Where something of this name is on the screen; null where it is not to be seen.
    QRect placeOf(const std::string& name) const;
    /// What a bar of this name shows; 0 where it is not to be seen.
    double valueOf(const std::string& name) const;

    /// A row of the results table.
    struct Row {
        std::array<std::string, allColumns.size()> cells; ///< "Bit rate: 320", "Marked"
        std::string place;                                ///< "Group 3 of 5, copy 2 of 3"
        bool isCurrent = false;
        bool isSelected = false;

        const std::string& operator[](Column column) const {
            return cells.at(static_cast<std::size_t>(column));
        }
    };
    /// How many rows the results table has; 0 where it is not to be seen.
    int rowCount() const;
    Row row(int index) const { return readRow(table(), index); }
    std::vector<Row> rows() const;
    QRect cellPlace(int row, Column column) const;
    QRect headerPlace(Column column) const;

  private:
    using Path = QString; ///< of an object of the program

    QString program() const;
    QList<QVariant> ask(const Path& object, const char* interface, const char* method,
                        const QList<QVariant>& arguments = {}) const;
    QVariant property(const Path& object, const char* interface, const char* name) const;
    std::vector<Path> childrenOf(const Path& object) const;
    std::string nameOf(const Path& object) const;
    std::optional<Path> named(const std::string& name) const;
    bool hasState(const Path& object, unsigned state) const;
    bool isTable(const Path& object) const;
    QRect extents(const Path& object) const;
    /// Every object below that is to be seen, tables without what is in them.
    void gather(const Path& object, std::vector<Path>& found) const;
    std::vector<Path> visibleObjects() const;
    Path table() const;
    Path cellObject(const Path& table, int row, Column column) const;
    Row readRow(const Path& table, int index) const;

    BusService m_bus;
    BusService m_registry;
    QDBusConnection m_connection;
};

} // namespace songsweep::test
