// SPDX-License-Identifier: MIT
#include "theme/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <vector>

static void initResources() { Q_INIT_RESOURCE(songsweep); }

namespace songsweep {

namespace {

/// One SVG file of an icon and the colour of the theme that fills its `currentColor`.
struct Layer {
    const char* file;
    QColor ThemeColors::*color;
};

std::vector<Layer> layersOf(Icon icon) {
    switch (icon) {
    case Icon::search:
        return {{"search", &ThemeColors::iconStroke}};
    case Icon::mark:
        return {{"mark", &ThemeColors::iconStroke}};
    case Icon::bin:
        return {{"bin", &ThemeColors::iconStroke}};
    case Icon::binLarge:
        return {{"bin-large", &ThemeColors::iconStroke}};
    case Icon::cancel:
        return {{"cancel", &ThemeColors::quietIcon}};
    case Icon::warning:
        return {{"warning", &ThemeColors::warning}};
    case Icon::note:
        return {{"note", &ThemeColors::iconStroke}};
    case Icon::star:
        return {{"star", &ThemeColors::iconStroke}};
    case Icon::starDot:
        return {{"star-dot", &ThemeColors::iconStroke}};
    case Icon::emptyState:
        return {{"empty-state-dashes", &ThemeColors::emptyStateDashes},
                {"empty-state-card", &ThemeColors::quietIcon}};
    case Icon::application:
        return {{"application", &ThemeColors::accent}};
    case Icon::applicationSmall:
        return {{"application-small", &ThemeColors::accent}};
    }
    return {};
}

QByteArray source(const char* name) {
    [[maybe_unused]] static const bool registered = (initResources(), true);
    QFile file(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void paintLayer(QPainter& painter, const char* name, const QRectF& target, const QColor& color) {
    QSvgRenderer renderer(source(name).replace("currentColor", color.name().toLatin1()));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter, target);
}

/// Renders when asked and keeps nothing, so that there is nothing to renew when the theme changes.
class ThemedIconEngine : public QIconEngine {
  public:
    explicit ThemedIconEngine(Icon icon)
        : m_icon(icon) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const ThemeColors& colors = themeColors(QGuiApplication::palette());
        if (mode == QIcon::Disabled)
            paintIcon(*painter, m_icon, rect, colors.disabledText);
        else
            paintIcon(*painter, variant(rect.size()), rect, colors);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new ThemedIconEngine(m_icon); }

  private:
    Icon variant(const QSize& size) const {
        constexpr int largestSmallIcon = 24;
        const bool small = qMin(size.width(), size.height()) <= largestSmallIcon;
        return m_icon == Icon::application && small ? Icon::applicationSmall : m_icon;
    }

    Icon m_icon;
};

} // namespace

void paintIcon(QPainter& painter, Icon icon, const QRectF& target, const ThemeColors& colors) {
    for (const Layer& layer : layersOf(icon))
        paintLayer(painter, layer.file, target, colors.*layer.color);
}

void paintIcon(QPainter& painter, Icon icon, const QRectF& target, const QColor& color) {
    for (const Layer& layer : layersOf(icon))
        paintLayer(painter, layer.file, target, color);
}

QIcon themedIcon(Icon icon) { return QIcon(new ThemedIconEngine(icon)); }

QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QIcon drawing = themedIcon(Icon::application);
        icon.addPixmap(drawing.pixmap(QSize(size, size), 1.0));
    }
    return icon;
}

} // namespace songsweep
