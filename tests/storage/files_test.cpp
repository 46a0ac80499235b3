#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <optional>

#include "platform/posix_files.h"
#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

// What goes wrong in `action`, or nothing.
std::optional<FileTrouble> troubleIn(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileFailure& failure) {
        return failure.trouble();
    }
    return std::nullopt;
}

class FilesTest : public testing::Test {
  protected:
    FreshFolder folder;
    PosixFiles files{folder.path()};
};

TEST_F(FilesTest, writeFromTheStartAndNeverTruncate) {
    files.write("a", "12345678");
    files.write("a", "ab");
    EXPECT_EQ(folder.bytes("a"), "ab345678");
    files.replace("a", "x");
    EXPECT_EQ(folder.bytes("a"), "x");
    const std::vector<std::string_view> pieces = {"one ", "", "two ", "3", "4", "5", "67890"};
    files.write("a", pieces);
    EXPECT_EQ(folder.bytes("a"), "one two 34567890");
    files.write((folder / "b").string(), "absolute");
    EXPECT_EQ(folder.bytes("b"), "absolute");
}

TEST_F(FilesTest, readingCreatesOnlyWhereItIsAskedFor) {
    EXPECT_EQ(troubleIn([&] { files.read("a"); }), FileTrouble::missing);
    EXPECT_FALSE(folder.has("a"));
    EXPECT_EQ(files.readOrCreate("a").view(), "");
    EXPECT_TRUE(folder.has("a"));
    folder.put("a", std::string("x\0y", 3));
    EXPECT_EQ(files.readOrCreate("a").view(), std::string_view("x\0y", 3));
    EXPECT_EQ(troubleIn([&] { files.readOrCreate("Temp/a"); }), FileTrouble::missing);
}

TEST_F(FilesTest, tellWhatIsWrong) {
    files.createFolder("Temp");
    files.createFolder("Temp");
    files.write("a", "");
    EXPECT_EQ(troubleIn([&] { files.createFolder("a"); }), FileTrouble::access);
    EXPECT_EQ(troubleIn([&] { files.write("Temp", "x"); }), FileTrouble::access);
    EXPECT_EQ(troubleIn([&] { files.write("none/a", "x"); }), FileTrouble::missing);
    EXPECT_EQ(troubleIn([&] { files.remove("none"); }), FileTrouble::missing);
    EXPECT_EQ(troubleIn([&] { files.write("/dev/full", "x"); }), FileTrouble::noSpace);
    EXPECT_TRUE(troubleIn([&] { files.read("Temp"); }));
    PosixFiles none((folder / "none").string());
    EXPECT_FALSE(none.FileExists("a"));
    EXPECT_TRUE(troubleIn([&] { none.write("a", "x"); }));

    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_TRUE(troubleIn([&] { files.readOrCreate("pipe"); }));  // and does not wait for a writer
    EXPECT_TRUE(troubleIn([&] { files.write("pipe", "x"); }));

    if (::geteuid() == 0) return;  // to whom everything is writable
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0400), 0);
    EXPECT_EQ(troubleIn([&] { files.write("a", "x"); }), FileTrouble::access);
    EXPECT_EQ(files.readOrCreate("a").view(), "");
}

TEST_F(FilesTest, anExchangeKeepsTheRestTheRightsAndTheLink) {
    namespace fs = std::filesystem;
    const std::vector<std::string_view> pieces = {"one", "", "two"};
    files.exchange("new", pieces);
    EXPECT_EQ(folder.bytes("new"), "onetwo");
    const FreshFolder outside;
    outside.put("a", "123456789");
    fs::permissions(outside / "a", fs::perms(0640));
    fs::create_symlink(outside / "a", folder / "second");
    fs::create_symlink("second", folder / "first");
    folder.put(".new.new", "left behind by a kill");
    files.exchange("first", pieces);
    files.exchange("new", pieces);
    EXPECT_EQ(outside.bytes("a"), "onetwo789");
    EXPECT_EQ(fs::status(outside / "a").permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_EQ(files.list(".", "*").size(), 3U);
    EXPECT_FALSE(folder.has(".new.new"));
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(troubleIn([&] { files.exchange("folder", pieces); }), FileTrouble::access);
    EXPECT_EQ(troubleIn([&] { files.exchange("pipe", pieces); }), FileTrouble::access);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(FilesTest, emptyAFolderByPatternAndFollowNoLink) {
    namespace fs = std::filesystem;
    const FreshFolder outside;
    outside.put("temp1.tmp", "kept");
    files.createFolder("Temp");
    for (const char* name : {"Temp/temp0.tmp", "Temp/temp12.tmp", "Temp/other.txt", "Temp/.temp.tmp"}) {
        files.write(name, "x");
    }
    fs::create_symlink(outside / "temp1.tmp", folder / "Temp/temp1.tmp");
    fs::create_directory_symlink(outside.path(), folder / "Temp/temp2.tmp");
    files.createFolder("Temp/temp3.tmp");
    EXPECT_TRUE(troubleIn([&] { files.removeAll("Temp", "temp*.tmp"); }));  // the folder, which stays
    EXPECT_EQ(files.list("Temp", "*"), (std::vector<std::string>{"other.txt"}));
    EXPECT_TRUE(folder.has("Temp/.temp.tmp") && folder.has("Temp/temp3.tmp") &&
                !folder.has("Temp/temp2.tmp"));

    fs::create_directory_symlink(outside.path(), folder / "link");
    for (const std::string& other : {std::string("link"), std::string(".."), outside.path(),
                                     std::string("../") + fs::path(outside.path()).filename().string()}) {
        EXPECT_TRUE(troubleIn([&] { files.removeAll(other, "temp*.tmp"); })) << other;
    }
    EXPECT_EQ(outside.bytes("temp1.tmp"), "kept");
    EXPECT_TRUE(troubleIn([&] { files.removeAll("none", "*"); }));
}

TEST_F(FilesTest, findAndListNormalFiles) {
    for (const char* name : {"b.sav", "a b.sav", "a.txt", ".hidden.sav"}) folder.put(name, "");
    files.createFolder("folder.sav");
    std::filesystem::create_symlink(folder / "a.txt", folder / "link.sav");
    std::filesystem::create_symlink(folder / "none", folder / "dead.sav");
    EXPECT_EQ(files.list(".", "*.sav"), (std::vector<std::string>{"a b.sav", "b.sav", "link.sav"}));
    EXPECT_TRUE(files.FileExists(" a b.sav "));
    EXPECT_TRUE(files.FileExists("link.sav"));
    for (const char* none : {"", " ", "none", "folder.sav", ".hidden.sav", "./.hidden.sav", "dead.sav"}) {
        EXPECT_FALSE(files.FileExists(none)) << none;
    }
}

TEST_F(FilesTest, theProgramFolderIsHeldUnderAnyName) {
    const std::string moved = folder.path() + "-moved";
    files.createFolder("inner");
    PosixFiles inner((folder / "inner").string());
    std::filesystem::rename(folder / "inner", moved);
    inner.write("a", "x");
    EXPECT_TRUE(std::filesystem::exists(moved + "/a"));
    std::filesystem::remove_all(moved);
}

}  // namespace
}  // namespace zifferon
