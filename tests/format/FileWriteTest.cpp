#include "format/FileWrite.h"
#include "support/Reporters.h"
#include "support/TempFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#if !defined(_WIN32)
#include <sys/resource.h>
#endif

namespace rhomba {
namespace {

namespace fs = std::filesystem;
using test::RecordingReporter;
using test::TempFile;

const std::string kCannotOpen = " konnte nicht zum Schreiben ge\xF6" "ffnet werden.";

TEST(FileWrite, ReplacesTheWholeFileKeepingItsPermissionsAndNoOtherFile) {
    const fs::path folder = test::TestFolder() / "ersetzen";
    fs::remove_all(folder);
    fs::create_directory(folder);
    const std::string target = (folder / "ziel.svg").string();
    TempFile old("ersetzen/ziel.svg", std::string(5000, 'o'));
    TempFile usersOwn("ersetzen/ziel.svg.rhomba-tmp", "meins"); // the name a fixed suffix took
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    RecordingReporter reporter;
    ASSERT_TRUE(WriteFileSafely(target, "neu", reporter));
    EXPECT_EQ(old.Read(), "neu");
    EXPECT_EQ(usersOwn.Read(), "meins");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2);
#if !defined(_WIN32)
    EXPECT_EQ(fs::status(target).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
#endif
    EXPECT_TRUE(reporter.messages.empty());
}

TEST(FileWrite, WritesThroughASymbolicLinkAndKeepsTheLink) {
#if defined(_WIN32)
    GTEST_SKIP() << "symbolic links need privileges on Windows";
#else
    TempFile real("echt.rhomba", "alt");
    const std::string link = TempFile("verweis.rhomba", "", false).path;
    fs::remove(link); // a link left behind by a run that was stopped
    fs::create_symlink(real.path, link);
    RecordingReporter reporter;
    ASSERT_TRUE(WriteFileSafely(link, "neu", reporter));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(real.Read(), "neu");
    fs::remove(link);
#endif
}

// Each failure leaves an existing target byte for byte as it was and tells why.
TEST(FileWrite, FailuresKeepTheOldBytesAndSayWhy) {
    TempFile old("alt.svg", "alter Inhalt");
    RecordingReporter reporter;
    const std::string missing = test::MissingFolderPath("x.svg");
    EXPECT_FALSE(WriteFileSafely(missing, "neu", reporter));
#if !defined(_WIN32)
    // A file-size limit would end the program with a signal; it is a failed write instead.
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit before = limit;
    limit.rlim_cur = 4;
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_FALSE(WriteFileSafely(old.path, "zu lang", reporter));
    setrlimit(RLIMIT_FSIZE, &before);
    // A device is written as it is: /dev/full is always full, /dev/null takes everything.
    EXPECT_FALSE(WriteFileSafely("/dev/full", "neu", reporter));
    EXPECT_TRUE(WriteFileSafely("/dev/null", "neu", reporter));
    EXPECT_EQ(reporter.messages,
              (std::vector<std::string>{missing + kCannotOpen,
                                        "Beim Schreiben von " + old.path + " ist ein Fehler aufgetreten.",
                                        "Beim Schreiben von /dev/full ist ein Fehler aufgetreten."}));
#endif
    EXPECT_EQ(old.Read(), "alter Inhalt");
}

} // namespace
} // namespace rhomba
