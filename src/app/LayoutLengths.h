// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QSize>

#include <vector>

class QLayout;
class QSpacerItem;
class QWidget;

namespace songsweep {

/// The margins, spacings and fixed spacers of a window's layouts, as its layout file gives them for a font of
/// 13 pixels, so that they can grow with the font. Taken once, before anything has grown. Main thread.
class LayoutLengths {
  public:
    explicit LayoutLengths(const QWidget& window);

    /// Sets every length for the window's present font.
    void grow(const QWidget& window) const;

  private:
    struct Layout {
        QLayout* layout;
        QMargins margins;
        int spacing;
    };
    struct Spacer {
        QSpacerItem* item;
        QSize size;
        QLayout* layout;
    };

    std::vector<Layout> m_layouts;
    std::vector<Spacer> m_spacers;
};

} // namespace songsweep
