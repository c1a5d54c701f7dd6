// SPDX-License-Identifier: MIT
//
// Libraries that were made to do harm: each ends with a sentence or with its tracks, soon, and nothing but
// the file itself is read.
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using ::testing::HasSubstr;
using ::testing::Not;

class HostileLibrary : public test::ProgramTest {
  protected:
    /// A library of two copies, the first with this name.
    static std::string withName(const std::string& name) {
        std::string text = libraryText({{.id = 1, .name = "NAME", .artist = "A", .milliseconds = 1000},
                                        {.id = 2, .name = "NAME", .artist = "A", .milliseconds = 1000}});
        return text.replace(text.find("NAME"), 4, name);
    }

    void expectRefused(const std::string& text, const std::string& reason) {
        const RunResult result =
            run({"find", "--library", m_folder.write("library.xml", text), "--same", "artist"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.errors, HasSubstr(path("library.xml") + ": " + reason));
    }

    RunResult findJson(const std::string& text) {
        return run({"find", "--library", m_folder.write("library.xml", text), "--same", "artist", "--format",
                    "json"});
    }
};

/// A library with a document type of its own.
std::string withDocumentType(std::string text, const std::string& type) {
    return text.insert(text.find("<plist"), type + "\n");
}

TEST_F(HostileLibrary, GetsNoOtherFileByAnEntity) {
    const std::string secret = m_folder.write("secret.txt", "the secret");
    const RunResult result = findJson(withDocumentType(
        withName("a&e;b"), "<!DOCTYPE plist [<!ENTITY e SYSTEM \"file://" + secret + "\">]>"));
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("the secret")));
}

TEST_F(HostileLibrary, GetsNoDocumentTypeOfItsOwn) {
    const std::string type = m_folder.write("evil.dtd", "<!ENTITY e \"fetched text\">");
    const RunResult result =
        findJson(withDocumentType(withName("a&e;b"), "<!DOCTYPE plist SYSTEM \"file://" + type + "\">"));
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("fetched text")));
}

TEST_F(HostileLibrary, HasAnEntityThatGrowsWithoutEnd) {
    std::string type = "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">";
    for (char name = 'b'; name < 'n'; ++name) {
        type += std::string("<!ENTITY ") + name + " \"";
        for (int i = 0; i < 10; ++i)
            type += std::string("&") + static_cast<char>(name - 1) + ";";
        type += "\">";
    }
    expectRefused(withDocumentType(withName("&m;"), type + "]>"), "line ");
}

TEST_F(HostileLibrary, HasATextBeyondAnyName) {
    constexpr std::size_t tooLong = std::size_t{33} << 20;
    expectRefused(withName(std::string(tooLong, 'x')), "line ");
}

TEST_F(HostileLibrary, IsNestedTooDeep) {
    std::string deep;
    for (int i = 0; i < 200'000; ++i)
        deep += "<dict><key>a</key>";
    expectRefused(withName("x</string><key>y</key>" + deep), "line ");
}

TEST_F(HostileLibrary, HasAZeroByteInAName) { expectRefused(withName(std::string("a\0b", 3)), "line "); }

TEST_F(HostileLibrary, HasBytesThatAreNoText) { expectRefused(withName("a\xFF\xFE b"), "line "); }

TEST_F(HostileLibrary, IsInAnEncodingThatIsNotUtf8) {
    std::string text = withName("a");
    text.replace(text.find("UTF-8"), 5, "UTF-16");
    std::string wide = "\xFF\xFE";
    for (const char c : text)
        wide += {c, '\0'};
    expectRefused(wide, "line 1: the encoding UTF-16 is not supported, only UTF-8");
}

TEST_F(HostileLibrary, MayBeginWithAMark) {
    const RunResult result = findJson("\xEF\xBB\xBF" + withName("a"));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("\"name\":\"a\""));
}

TEST_F(HostileLibrary, HasNumbersThatNoNumberHolds) {
    const std::string huge(1000, '9');
    const RunResult result = findJson(
        withName("a</string><key>Size</key><integer>" + huge + "</integer><key>Year</key><integer>-" + huge +
                 "</integer><key>Bit Rate</key><integer>0x7F</integer><key>x</key><string>"));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("\"name\":\"a\""));
}

TEST_F(HostileLibrary, IsAPipe) {
    ASSERT_EQ(::mkfifo(path("library.xml").c_str(), 0600), 0);
    const RunResult result = run({"find", "--library", path("library.xml")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "songsweep: " + path("library.xml") + " is not a regular file\n");
}

TEST_F(HostileLibrary, IsADevice) {
    for (const std::string device : {"/dev/zero", "/dev/null"}) {
        const RunResult result = run({"find", "--library", device});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.errors, "songsweep: " + device + " is not a regular file\n");
    }
}

TEST_F(HostileLibrary, IsAFileOfTheSystem) {
    for (const std::string file : {"/proc/self/environ", "/proc/self/mem", "/proc/self/maps"}) {
        const RunResult result = run({"find", "--library", file});
        EXPECT_EQ(result.exitCode, 1) << file;
        EXPECT_THAT(result.errors, HasSubstr(file));
    }
}

TEST_F(HostileLibrary, IsDeletedFromOnlyWhereItIsWellFormed) {
    const std::string text = withName("a\xFF");
    const RunResult result = run({"delete", "--library", m_folder.write("library.xml", text), "--same",
                                  "artist", "--rule", "smallest", "--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(m_folder.read("library.xml"), text);
}

} // namespace
} // namespace songsweep
