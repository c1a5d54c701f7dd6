// SPDX-License-Identifier: MIT
#include "app/DetailsDialog.h"

#include "support/EventLoop.h"
#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QPlainTextEdit>

#include <string>
#include <vector>

namespace songsweep::test {
namespace {

using DetailsDialogTest = ThemedTest;

TEST_F(DetailsDialogTest, ManyLinesComeByAndByAndAreCopiedWhole) {
    constexpr int count = 50'000;
    std::vector<std::string> lines;
    for (int line = 0; line < count; ++line)
        lines.push_back("Song " + std::to_string(line) + (line == 1 ? "\nin two lines" : ""));
    DetailsDialog dialog(QStringLiteral("Details"), lines, nullptr);
    auto& list = child<QPlainTextEdit>(dialog, "detailsList");
    EXPECT_LT(list.blockCount(), count);
    EXPECT_EQ(dialog.text().count(QChar::LineFeed), count - 1);
    ASSERT_TRUE(runEventLoopUntil([&] { return list.blockCount() == count; }));
    EXPECT_EQ(list.toPlainText(), dialog.text());
}

} // namespace
} // namespace songsweep::test
