// SPDX-License-Identifier: MIT
#include "theme/Icons.h"
#include "theme/Metrics.h"
#include "theme/RowColors.h"
#include "theme/SongsweepStyle.h"
#include "theme/ThemeColors.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFocusFrame>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace songsweep {
namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

class BothThemes : public testing::TestWithParam<ThemeKind> {
  protected:
    const ThemeColors& colors() const { return themeColors(GetParam()); }
};

TEST_P(BothThemes, HaveReadableTexts) {
    constexpr double readable = 4.5;
    for (const QColor& background : {colors().window, colors().content, colors().buttonFace}) {
        EXPECT_GE(contrast(colors().text, background), readable);
        EXPECT_GE(contrast(colors().secondaryText, background), readable);
        EXPECT_GE(contrast(colors().destructive, background), readable);
    }
    EXPECT_GE(contrast(colors().warning, colors().window), readable);
    EXPECT_GE(contrast(colors().onAccent, colors().accent), readable);
}

TEST_P(BothThemes, HaveVisibleOutlines) {
    constexpr double visible = 3;
    EXPECT_GE(contrast(colors().indicatorOutline, colors().window), visible);
    EXPECT_GE(contrast(colors().focusRing, colors().window), visible);
    EXPECT_GE(contrast(colors().iconStroke, colors().window), visible);
}

TEST_P(BothThemes, AreCarriedByTheirPalette) {
    EXPECT_EQ(themeKind(themePalette(GetParam())), GetParam());
    EXPECT_EQ(&themeColors(themePalette(GetParam())), &colors());
    EXPECT_EQ(themePalette(GetParam()).color(QPalette::Disabled, QPalette::WindowText),
              colors().disabledText);
}

INSTANTIATE_TEST_SUITE_P(, BothThemes, testing::Values(ThemeKind::light, ThemeKind::dark));

TEST(Theme, FollowsTheLightnessOfTheSystemsPalette) {
    SongsweepStyle style;
    QPalette dark(QColor(0x20, 0x20, 0x20));
    style.polish(dark);
    EXPECT_EQ(dark.color(QPalette::Window), themeColors(ThemeKind::dark).window);
    QPalette light(QColor(0xEF, 0xEF, 0xEF));
    style.polish(light);
    EXPECT_EQ(light.color(QPalette::Window), themeColors(ThemeKind::light).window);
}

TEST(RowColors, AreReadableOnTheirBands) {
    constexpr double readable = 4.5;
    for (const QColor& band : {tintedBand, whiteBand}) {
        EXPECT_GE(contrast(rowColors(RowState::plain).text, band), readable);
        EXPECT_GE(contrast(rowColors(RowState::plain).secondaryText, band), readable);
    }
    EXPECT_GE(contrast(rowColors(RowState::selected).text, selectedBand), readable);
    EXPECT_GE(contrast(rowColors(RowState::selectedInactive).secondaryText, selectedInactiveBand), readable);
}

QImage drawn(Icon icon, int size, ThemeKind kind) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintIcon(painter, icon, image.rect(), themeColors(kind));
    return image;
}

class EveryIcon : public testing::TestWithParam<Icon> {};

TEST_P(EveryIcon, IsDrawnAtEverySizeAndInsideItsBounds) {
    constexpr int margin = 12;
    for (const int size : {14, 20, 30, 40}) {
        const QRect bounds(margin, margin, size, size);
        QImage image(size + 2 * margin, size + 2 * margin, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paintIcon(painter, GetParam(), bounds, themeColors(ThemeKind::light));
        QRect inked;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) > 0) inked |= QRect(x, y, 1, 1);
        EXPECT_FALSE(inked.isEmpty()) << size;
        EXPECT_TRUE(bounds.contains(inked)) << size;
    }
}

INSTANTIATE_TEST_SUITE_P(, EveryIcon,
                         testing::Values(Icon::search, Icon::mark, Icon::bin, Icon::binLarge, Icon::cancel,
                                         Icon::warning, Icon::note, Icon::star, Icon::starDot,
                                         Icon::emptyState, Icon::application, Icon::applicationSmall));

TEST(Icons, TakeTheirColourFromTheTheme) {
    constexpr int size = 80;
    const QPoint onTheLens(8.75 * 4, 3.25 * 4); // the top of the magnifier's circle
    EXPECT_EQ(drawn(Icon::search, size, ThemeKind::light).pixelColor(onTheLens),
              themeColors(ThemeKind::light).iconStroke);
    EXPECT_EQ(drawn(Icon::search, size, ThemeKind::dark).pixelColor(onTheLens),
              themeColors(ThemeKind::dark).iconStroke);
}

TEST(Icons, TakeTheDisabledTextColourWhenDisabled) {
    const QImage image = themedIcon(Icon::bin)
                             .pixmap(QSize(80, 80), 1.0, QIcon::Disabled)
                             .toImage()
                             .convertToFormat(QImage::Format_ARGB32);
    const QPoint onTheLid(10 * 4, 5.4 * 4);
    EXPECT_EQ(image.pixelColor(onTheLid), themeColors(QApplication::palette()).disabledText);
}

TEST(Icons, HoldTheMissingFilePictureAtThreeScales) {
    QApplication::setStyle(new SongsweepStyle);
    themedIcon(Icon::search).pixmap(QSize(16, 16), 1.0);
    EXPECT_EQ(QImage(QStringLiteral(":/dtrack.png")).size(), QSize(16, 16));
    EXPECT_EQ(QImage(QStringLiteral(":/dtrack@2x.png")).size(), QSize(32, 32));
    EXPECT_EQ(QImage(QStringLiteral(":/dtrack@3x.png")).size(), QSize(48, 48));
}

class StyledWindow : public testing::Test {
  protected:
    StyledWindow() {
        QApplication::setStyle(new SongsweepStyle);
        QFont font(QStringLiteral("Noto Sans"));
        font.setPixelSize(13);
        m_window.setFont(font);
        m_window.setPalette(themePalette(ThemeKind::light));
    }

    QColor colorAt(const QPoint& point) { return m_window.grab().toImage().pixelColor(point); }

    QWidget m_window;
};

TEST_F(StyledWindow, MakesButtonsThirtyHighAndGrowsThemWithTheFont) {
    QPushButton button(QStringLiteral("OK"), &m_window);
    EXPECT_EQ(button.sizeHint(), QSize(88, 30));
    QFont twice = m_window.font();
    twice.setPixelSize(26);
    m_window.setFont(twice);
    EXPECT_EQ(button.sizeHint(), QSize(176, 60));
}

TEST_F(StyledWindow, AlignsTheTextsOfAPopupWithThatOfItsField) {
    QComboBox combo(&m_window);
    combo.addItems({QStringLiteral("Highest"), QStringLiteral("Lowest")});
    combo.setGeometry(20, 20, 200, 28);
    m_window.show();
    combo.showPopup();
    QStyleOptionComboBox field;
    field.initFrom(&combo);
    const QStyle* style = combo.style();
    const QRect text =
        style->subControlRect(QStyle::CC_ComboBox, &field, QStyle::SC_ComboBoxEditField, &combo);
    const QAbstractItemView* view = combo.view();
    QStyleOptionViewItem item;
    item.initFrom(view);
    item.rect = view->visualRect(view->model()->index(0, 0));
    item.text = QStringLiteral("Highest");
    item.features = QStyleOptionViewItem::HasDisplay;
    const QRect itemText = style->subElementRect(QStyle::SE_ItemViewItemText, &item, view);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, view) + 1;
    EXPECT_EQ(view->viewport()->mapTo(view->window(), itemText.topLeft()).x() + margin, text.left());
}

TEST_F(StyledWindow, FillsTheDefaultButtonAlone) {
    m_window.resize(300, 100);
    QPushButton plain(QString(), &m_window);
    QPushButton filled(QString(), &m_window);
    plain.setGeometry(10, 10, 100, 30);
    filled.setGeometry(10, 60, 100, 30);
    filled.setDefault(true);
    m_window.show();
    EXPECT_EQ(colorAt(QPoint(60, 25)), themeColors(ThemeKind::light).buttonFace);
    EXPECT_EQ(colorAt(QPoint(60, 75)), themeColors(ThemeKind::light).accent);
    EXPECT_EQ(colorAt(QPoint(60, 10)), themeColors(ThemeKind::light).buttonBorder);
}

TEST_F(StyledWindow, DrawsTheRingTwoPixelsOutsideTheFocusedControl) {
    m_window.resize(300, 100);
    QLineEdit other(&m_window);
    QPushButton button(QString(), &m_window);
    button.setGeometry(20, 20, 100, 30);
    other.setGeometry(20, 54, 100, 28); // closer than the ring reaches
    m_window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    button.setFocus();
    const ThemeColors& colors = themeColors(ThemeKind::light);
    EXPECT_EQ(colorAt(QPoint(70, 19)), colors.window);
    EXPECT_EQ(colorAt(QPoint(70, 18)), colors.window);
    EXPECT_EQ(colorAt(QPoint(70, 17)), colors.focusRing);
    EXPECT_EQ(colorAt(QPoint(70, 16)), colors.focusRing);
    EXPECT_EQ(colorAt(QPoint(70, 15)), colors.window);
    EXPECT_EQ(colorAt(QPoint(70, 53)), colors.focusRing);
    other.setFocus();
    EXPECT_EQ(colorAt(QPoint(70, 17)), colors.window);
}

TEST_F(StyledWindow, HonoursRolesAndLengthsThatGrow) {
    auto* layout = new QVBoxLayout(&m_window);
    QLabel heading(QStringLiteral("Delete?"));
    heading.setProperty("role", QStringLiteral("heading"));
    QLabel helper(QStringLiteral("quiet"));
    helper.setProperty("role", QStringLiteral("helper"));
    helper.setProperty("baseWidth", 100);
    layout->addWidget(&heading);
    layout->addWidget(&helper);
    m_window.show();
    EXPECT_TRUE(heading.font().bold());
    EXPECT_EQ(heading.font().pixelSize(), 15);
    EXPECT_EQ(helper.font().pixelSize(), 12);
    EXPECT_EQ(helper.foregroundRole(), QPalette::PlaceholderText);
    EXPECT_EQ(helper.minimumWidth(), 100);
    QFont twice = m_window.font();
    twice.setPixelSize(26);
    m_window.setFont(twice);
    EXPECT_EQ(heading.font().pixelSize(), 30);
    EXPECT_EQ(helper.minimumWidth(), 200);
}

TEST_F(StyledWindow, ShowsMarkupAsItIsInToolTips) {
    m_window.show();
    QToolTip::showText(m_window.pos(), QStringLiteral("<b>bold</b>"), &m_window);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.begin(), windows.end(),
                                  [](const QWidget* each) { return each->inherits("QTipLabel"); });
    ASSERT_NE(tip, windows.end());
    EXPECT_EQ(qobject_cast<QLabel*>(*tip)->textFormat(), Qt::PlainText);
    QToolTip::hideText();
}

TEST_F(StyledWindow, ShowsMnemonicsOnlyWhileAltIsHeld) {
    QStyle* style = QApplication::style();
    EXPECT_EQ(style->styleHint(QStyle::SH_UnderlineShortcut), 0);
    m_window.show();
    QTest::keyPress(&m_window, Qt::Key_Alt);
    EXPECT_EQ(style->styleHint(QStyle::SH_UnderlineShortcut), 1);
    QTest::keyRelease(&m_window, Qt::Key_Alt);
    EXPECT_EQ(style->styleHint(QStyle::SH_UnderlineShortcut), 0);
}

TEST(Metrics, GrowWithTheFontAndNeverShrink) {
    QFont font(QStringLiteral("Noto Sans"));
    font.setPixelSize(13);
    EXPECT_EQ(scaledLength(20, font), 20);
    font.setPixelSize(26);
    EXPECT_EQ(scaledLength(20, font), 40);
    font.setPixelSize(9);
    EXPECT_EQ(scaledLength(20, font), 20);
}

TEST(TextToolButton, KeepsNoRoomForAnIcon) {
    applyTheme(*qApp);
    QToolButton button;
    button.setText(QStringLiteral("Details"));
    const int text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
    EXPECT_EQ(button.sizeHint().width(), text + 2 * scaledLength(10, &button));
    EXPECT_LT(button.sizeHint().height(), scaledLength(28, &button)) << "it fits into a line";
}

TEST(RowHeader, CutsNothingOffItsText) {
    applyTheme(*qApp);
    QTableWidget table(1, 1);
    table.verticalHeader()->setMinimumSectionSize(22);
    table.verticalHeader()->setFixedWidth(60);
    table.setRowHeight(0, 22);
    const auto painted = [&](const QString& label) {
        table.setVerticalHeaderLabels({label});
        return table.verticalHeader()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage blank = painted(QStringLiteral(" "));
    const QImage text = painted(QStringLiteral("Mg"));
    int rows = 0;
    for (int y = 0; y < text.height(); ++y)
        rows += std::equal(text.constScanLine(y), text.constScanLine(y) + text.bytesPerLine(),
                           blank.constScanLine(y))
                    ? 0
                    : 1;
    EXPECT_GT(rows, table.fontMetrics().capHeight()) << "letters with their tails";
}

TEST(ArrowToolButton, ShowsWhereItsArrowPoints) {
    applyTheme(*qApp);
    QToolButton button;
    button.setText(QStringLiteral("Options"));
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto painted = [&](Qt::ArrowType arrow) {
        button.setArrowType(arrow);
        return button.grab().toImage();
    };
    EXPECT_NE(painted(Qt::RightArrow), painted(Qt::NoArrow));
    EXPECT_NE(painted(Qt::RightArrow), painted(Qt::DownArrow));
    button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_NE(painted(Qt::RightArrow), painted(Qt::DownArrow));
}

} // namespace
} // namespace songsweep
