// SPDX-License-Identifier: MIT
#include "theme/WidgetRoles.h"

#include "theme/Icons.h"
#include "theme/Metrics.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QVariant>

#include <algorithm>
#include <array>
#include <optional>

namespace songsweep {

namespace {

struct LabelRole {
    const char* name;
    qreal sizeFactor;
    bool bold;
    QPalette::ColorRole color;
};

constexpr qreal smallText = 0.92;
constexpr qreal headingText = 1.15;
constexpr qreal titleText = 1.4;

constexpr std::array labelRoles = {
    LabelRole{"heading", headingText, true, QPalette::WindowText},
    LabelRole{"title", titleText, false, QPalette::WindowText},
    LabelRole{"secondary", 1, false, QPalette::PlaceholderText},
    LabelRole{"helper", smallText, false, QPalette::PlaceholderText},
    LabelRole{"small", smallText, false, QPalette::WindowText},
    LabelRole{"warning", 1, false, QPalette::BrightText},
    LabelRole{"smallWarning", smallText, false, QPalette::BrightText},
};

QFont sizedFont(const QFont& base, const LabelRole& role) {
    QFont font = base;
    if (base.pointSizeF() > 0)
        font.setPointSizeF(base.pointSizeF() * role.sizeFactor);
    else
        font.setPixelSize(qRound(base.pixelSize() * role.sizeFactor));
    font.setBold(role.bold);
    return font;
}

void applyRole(QLabel& label) {
    const QString name = label.property("role").toString();
    const auto* role = std::find_if(labelRoles.begin(), labelRoles.end(),
                                    [&](const LabelRole& each) { return name == QLatin1String(each.name); });
    if (role == labelRoles.end()) return;
    label.setForegroundRole(role->color);
    const QWidget* parent = label.parentWidget();
    label.setFont(sizedFont(parent != nullptr ? parent->font() : QApplication::font(), *role));
}

int grown(const QWidget& widget, const char* property) {
    return scaledLength(widget.property(property).toInt(), &widget);
}

void applyLengths(QWidget& widget) {
    if (widget.property("baseWidth").isValid()) widget.setMinimumWidth(grown(widget, "baseWidth"));
    if (widget.property("baseFixedWidth").isValid()) widget.setFixedWidth(grown(widget, "baseFixedWidth"));
    if (widget.property("baseHeight").isValid()) widget.setMinimumHeight(grown(widget, "baseHeight"));
    if (widget.property("baseFixedHeight").isValid()) widget.setFixedHeight(grown(widget, "baseFixedHeight"));
}

std::optional<Icon> iconNamed(const QString& name) {
    if (name == QLatin1String("application")) return Icon::application;
    if (name == QLatin1String("bin")) return Icon::binLarge;
    if (name == QLatin1String("warning")) return Icon::warning;
    return std::nullopt;
}

void applyIcon(QLabel& label) {
    const std::optional<Icon> icon = iconNamed(label.property("icon").toString());
    if (!icon) return;
    const int size = grown(label, "baseIconSize");
    label.setPixmap(themedIcon(*icon).pixmap(QSize(size, size), label.devicePixelRatioF()));
}

/// Names of tracks and files may look like markup, in labels and in tool tips, which are labels, too.
void applyLabel(QLabel& label) {
    label.setTextFormat(Qt::PlainText);
    applyRole(label);
    applyIcon(label);
    if (label.property("baseIndent").isValid()) label.setIndent(grown(label, "baseIndent"));
}

void applyRole(QCheckBox& box) {
    if (box.property("role").toString() == QLatin1String("secondary"))
        box.setForegroundRole(QPalette::PlaceholderText);
}

void apply(QWidget& widget) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) applyLabel(*label);
    if (auto* box = qobject_cast<QCheckBox*>(&widget)) applyRole(*box);
    applyLengths(widget);
}

bool mattersToRoles(QEvent::Type type) {
    return type == QEvent::FontChange || type == QEvent::ApplicationFontChange ||
           type == QEvent::PaletteChange;
}

} // namespace

void WidgetRoles::polish(QWidget* widget) {
    if (widget->isWindow()) widget->installEventFilter(this);
    apply(*widget);
}

bool WidgetRoles::eventFilter(QObject* object, QEvent* event) {
    if (mattersToRoles(event->type())) {
        for (QWidget* widget : object->findChildren<QWidget*>())
            apply(*widget);
    }
    return QObject::eventFilter(object, event);
}

} // namespace songsweep
