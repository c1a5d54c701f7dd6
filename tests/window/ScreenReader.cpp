// SPDX-License-Identifier: MIT
#include "window/ScreenReader.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>

namespace songsweep::test {

namespace {

const QString connectionName = QStringLiteral("screen-reader");
const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
constexpr const char* accessible = "org.a11y.atspi.Accessible";
constexpr const char* tableInterface = "org.a11y.atspi.Table";
constexpr const char* valueInterface = "org.a11y.atspi.Value";

// Numbers of the accessibility bus.
constexpr unsigned tableRole = 55;
constexpr unsigned focusedState = 12;
constexpr unsigned selectedState = 23;
constexpr unsigned showingState = 25;

/// A reference to an object: the name of its program on the bus and its path there.
struct Reference {
    QString program;
    QString path;
};

Reference referenceIn(const QDBusArgument& argument) {
    Reference reference;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> reference.program >> path;
    argument.endStructure();
    reference.path = path.path();
    return reference;
}

Reference referenceIn(const QVariant& value) { return referenceIn(qvariant_cast<QDBusArgument>(value)); }

QVariant variantOf(const Reference& reference) {
    QDBusArgument argument;
    argument.beginStructure();
    argument << reference.program << QDBusObjectPath(reference.path);
    argument.endStructure();
    return QVariant::fromValue(argument);
}

BusService::Answer addressAnswer(const QString& address) {
    return [address](const QDBusMessage& call) -> std::optional<QList<QVariant>> {
        if (call.member() == QStringLiteral("GetAddress")) return QList<QVariant>{address};
        if (call.member() == QStringLiteral("Get"))
            return QList<QVariant>{QVariant::fromValue(QDBusVariant(true))}; // a screen reader is on
        return std::nullopt;
    };
}

/// A desktop that takes in every program that introduces itself.
std::optional<QList<QVariant>> registryAnswer(const QDBusMessage& call) {
    if (call.member() != QStringLiteral("Embed")) return std::nullopt;
    return QList<QVariant>{variantOf({QStringLiteral("org.a11y.atspi.Registry"), rootPath})};
}

} // namespace

ScreenReader::ScreenReader(const PrivateBus& bus)
    : m_bus(bus, QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
            addressAnswer(bus.address()))
    , m_registry(bus, QStringLiteral("org.a11y.atspi.Registry"), rootPath, registryAnswer)
    , m_connection(QDBusConnection::connectToBus(bus.address(), connectionName)) {}

ScreenReader::~ScreenReader() { QDBusConnection::disconnectFromBus(connectionName); }

QString ScreenReader::program() const {
    const auto introductions = m_registry.callsOf(QStringLiteral("Embed"));
    return introductions.empty() ? QString() : referenceIn(introductions.back().value(0)).program;
}

QList<QVariant> ScreenReader::ask(const Path& object, const char* interface, const char* method,
                                  const QList<QVariant>& arguments) const {
    if (object.isEmpty() || !hasProgram()) return {};
    QDBusMessage call =
        QDBusMessage::createMethodCall(program(), object, QLatin1String(interface), QLatin1String(method));
    call.setArguments(arguments);
    const QDBusMessage answer = m_connection.call(call);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QList<QVariant>{};
}

QVariant ScreenReader::property(const Path& object, const char* interface, const char* name) const {
    const auto answer = ask(object, "org.freedesktop.DBus.Properties", "Get",
                            {QString::fromLatin1(interface), QString::fromLatin1(name)});
    return qvariant_cast<QDBusVariant>(answer.value(0)).variant();
}

std::vector<ScreenReader::Path> ScreenReader::childrenOf(const Path& object) const {
    const auto answer = ask(object, accessible, "GetChildren");
    std::vector<Path> children;
    if (answer.isEmpty()) return children;
    const auto list = qvariant_cast<QDBusArgument>(answer.front());
    list.beginArray();
    while (!list.atEnd())
        children.push_back(referenceIn(list).path);
    list.endArray();
    return children;
}

std::string ScreenReader::nameOf(const Path& object) const {
    return property(object, accessible, "Name").toString().toStdString();
}

bool ScreenReader::hasState(const Path& object, unsigned state) const {
    const auto answer = ask(object, accessible, "GetState");
    if (answer.isEmpty()) return false;
    QList<unsigned> words;
    qvariant_cast<QDBusArgument>(answer.front()) >> words;
    return (words.value(state / 32) >> state % 32 & 1U) != 0;
}

bool ScreenReader::isTable(const Path& object) const {
    return ask(object, accessible, "GetRole").value(0).toUInt() == tableRole;
}

QRect ScreenReader::extents(const Path& object) const {
    constexpr unsigned onScreen = 0;
    const auto answer = ask(object, "org.a11y.atspi.Component", "GetExtents", {onScreen});
    if (answer.isEmpty()) return {};
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const auto rectangle = qvariant_cast<QDBusArgument>(answer.front());
    rectangle.beginStructure();
    rectangle >> x >> y >> width >> height;
    rectangle.endStructure();
    return {x, y, width, height};
}

void ScreenReader::gather(const Path& object, std::vector<Path>& found) const {
    for (const Path& child : childrenOf(object)) {
        if (!hasState(child, showingState)) continue;
        found.push_back(child);
        if (!isTable(child)) gather(child, found);
    }
}

std::vector<ScreenReader::Path> ScreenReader::visibleObjects() const {
    std::vector<Path> found;
    gather(rootPath, found);
    return found;
}

std::vector<std::string> ScreenReader::texts() const {
    std::vector<std::string> texts;
    for (const Path& object : visibleObjects())
        texts.push_back(nameOf(object));
    return texts;
}

bool ScreenReader::shows(const std::string& text) const {
    const auto shown = texts();
    return std::find(shown.begin(), shown.end(), text) != shown.end();
}

std::optional<ScreenReader::Path> ScreenReader::named(const std::string& name) const {
    const auto objects = visibleObjects();
    const auto found = std::find_if(objects.begin(), objects.end(),
                                    [&](const Path& object) { return nameOf(object) == name; });
    if (found == objects.end()) return std::nullopt;
    return *found;
}

QRect ScreenReader::placeOf(const std::string& name) const {
    const auto object = named(name);
    return object ? extents(*object) : QRect();
}

double ScreenReader::valueOf(const std::string& name) const {
    const auto object = named(name);
    return object ? property(*object, valueInterface, "CurrentValue").toDouble() : 0;
}

ScreenReader::Path ScreenReader::table() const {
    const auto objects = visibleObjects();
    const auto found =
        std::find_if(objects.begin(), objects.end(), [this](const Path& object) { return isTable(object); });
    return found == objects.end() ? Path() : *found;
}

int ScreenReader::rowCount() const { return property(table(), tableInterface, "NRows").toInt(); }

ScreenReader::Path ScreenReader::cellObject(const Path& table, int row, Column column) const {
    const auto answer = ask(table, tableInterface, "GetAccessibleAt", {row, static_cast<int>(column)});
    return answer.isEmpty() ? Path() : referenceIn(answer.front()).path;
}

ScreenReader::Row ScreenReader::readRow(const Path& table, int index) const {
    Row row;
    std::transform(allColumns.begin(), allColumns.end(), row.cells.begin(),
                   [&](Column column) { return nameOf(cellObject(table, index, column)); });
    const Path name = cellObject(table, index, Column::name);
    row.place = property(name, accessible, "Description").toString().toStdString();
    row.isCurrent = hasState(name, focusedState);
    row.isSelected = hasState(name, selectedState);
    return row;
}

std::vector<ScreenReader::Row> ScreenReader::rows() const {
    const Path shown = table();
    const int count = property(shown, tableInterface, "NRows").toInt();
    std::vector<Row> rows;
    for (int index = 0; index < count; ++index)
        rows.push_back(readRow(shown, index));
    return rows;
}

QRect ScreenReader::cellPlace(int row, Column column) const {
    return extents(cellObject(table(), row, column));
}

QRect ScreenReader::headerPlace(Column column) const {
    const auto answer = ask(table(), tableInterface, "GetColumnHeader", {static_cast<int>(column)});
    return answer.isEmpty() ? QRect() : extents(referenceIn(answer.front()).path);
}

} // namespace songsweep::test
