#include "model/Picture.h"

#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "model/ModelLimits.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

// Numbers of the catalogue.
constexpr int kNoMoreMemoryLeft = 1001;
constexpr int kReadFileFailure = 1002;
constexpr int kWrongParameter = 5001;

/// The number of the failure that the action raises, 0 if it raises none.
int FailureOf(const std::function<void()>& action) {
  CKXExceptionHandler::GetInstance().SetExceptionPathName(zebtest::Widen(ZEB_SHARE).c_str());
  try {
    action();
  } catch (const CKXException& failure) {
    return failure.GetErrorNr();
  }
  return 0;
}

std::vector<unsigned char> Bytes(const CPicture& picture) {
  const unsigned char* const data = picture.GetPictureData();
  return data == nullptr ? std::vector<unsigned char>()
                         : std::vector<unsigned char>(data, data + picture.GetPictureLength());
}

void Fill(CPicture& picture, std::vector<unsigned char> bytes) {
  picture.LoadPictureFromMem(bytes.data(), static_cast<int>(bytes.size()));
}

/// A record with a stated length and a content in Base64.
std::string Record(const std::string& length, const std::string& base64) {
  return "<Picture><PicID>0</PicID><Placeable><PlID>0</PlID></Placeable><PictureDataLength>" + length +
         "</PictureDataLength><PictureData><BinaryData>" + base64 + "</BinaryData></PictureData></Picture>";
}

const std::vector<unsigned char> kABC = {'a', 'b', 'c'};  // "YWJj" in Base64

TEST(Picture, IsEmptyAtFirst) {
  const CPicture picture;
  EXPECT_EQ(picture.GetPictureData(), nullptr);
  EXPECT_EQ(picture.GetPictureLength(), 0);
}

TEST(Picture, EmptyPictureWritesLengthZeroAndEmptyContent) {
  CPicture picture;
  const std::string record = SaveRecord(picture);
  EXPECT_EQ(record,
            "<Picture><PicID>0</PicID><Placeable><PlID>0</PlID></Placeable>"
            "<PictureDataLength>0</PictureDataLength><PictureData><BinaryData/></PictureData></Picture>");
  CPicture loaded;
  LoadRecord(loaded, record);
  EXPECT_EQ(loaded.GetPictureLength(), 0);
}

TEST(Picture, WritesItsBytesAndReadsThemBack) {
  CPicture picture;
  Fill(picture, kABC);
  EXPECT_EQ(SaveRecord(picture), Record("3", "YWJj"));

  std::vector<unsigned char> all(256);
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<unsigned char>(i);
  Fill(picture, all);
  CPicture loaded;
  LoadRecord(loaded, SaveRecord(picture));
  EXPECT_EQ(Bytes(loaded), all);
}

TEST(Picture, BindsItself) {
  CIDManager ids;
  CPicture picture;
  LoadRecord(picture, "<Picture><PicID>5</PicID><Placeable><Width>7</Width></Placeable></Picture>", ids);
  EXPECT_EQ(ids.GetObjectFromID(5), &picture);
  EXPECT_EQ(picture.GetWidth(), 7.0F);
}

TEST(Picture, LoadsAFile) {
  const zebtest::TempDir dir;
  zebtest::WriteBytes(dir.File("a.bin"), {0, 1, 2, 255, 0});
  CPicture picture;
  picture.LoadPicture(dir.WideFile("a.bin").c_str());
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{0, 1, 2, 255, 0}));
  zebtest::WriteBytes(dir.File("b.bin"), {9});
  picture.LoadPicture(dir.WideFile("b.bin").c_str());
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{9}));
}

TEST(Picture, LoadsAnEmptyFile) {
  const zebtest::TempDir dir;
  zebtest::WriteBytes(dir.File("empty"), {});
  CPicture picture;
  Fill(picture, kABC);
  picture.LoadPicture(dir.WideFile("empty").c_str());
  EXPECT_EQ(picture.GetPictureLength(), 0);
}

TEST(Picture, NoPathIsAWrongParameter) {
  CPicture picture;
  Fill(picture, kABC);
  EXPECT_EQ(FailureOf([&] { picture.LoadPicture(nullptr); }), kWrongParameter);
  EXPECT_EQ(FailureOf([&] { picture.LoadPicture(L""); }), kWrongParameter);
  EXPECT_EQ(Bytes(picture), kABC);
}

TEST(Picture, MissingFileKeepsTheOldBlock) {
  const zebtest::TempDir dir;
  CPicture picture;
  Fill(picture, kABC);
  EXPECT_EQ(FailureOf([&] { picture.LoadPicture(dir.WideFile("missing").c_str()); }), kReadFileFailure);
  EXPECT_EQ(FailureOf([&] { picture.LoadPicture(dir.WidePath().c_str()); }), kReadFileFailure);
  EXPECT_EQ(Bytes(picture), kABC);
}

TEST(Picture, FailuresAreOfTheFamiliesOfTheirKeys) {
  CKXExceptionHandler::GetInstance().SetExceptionPathName(zebtest::Widen(ZEB_SHARE).c_str());
  CPicture picture;
  EXPECT_THROW(picture.LoadPicture(L"/missing/picture"), CKXFileException);
  EXPECT_THROW(LoadRecord(picture, Record("-1", "YWJj")), CKXMemoryException);
}

TEST(Picture, TakesACopyOfMemory) {
  std::array<unsigned char, 3> block = {1, 2, 3};
  CPicture picture;
  picture.LoadPictureFromMem(block.data(), 3);
  EXPECT_NE(picture.GetPictureData(), block.data());
  block[0] = 9;
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{1, 2, 3}));
  picture.LoadPictureFromMem(block.data(), 2);
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{9, 2}));
}

TEST(Picture, TakesACopyOfItsOwnBlock) {
  CPicture picture;
  Fill(picture, kABC);
  picture.LoadPictureFromMem(picture.GetPictureData() + 1, 2);
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{'b', 'c'}));
}

TEST(Picture, NoMemoryIsAWrongParameterAndKeepsTheOldBlock) {
  std::array<unsigned char, 1> block = {1};
  CPicture picture;
  Fill(picture, kABC);
  EXPECT_EQ(FailureOf([&] { picture.LoadPictureFromMem(nullptr, 1); }), kWrongParameter);
  EXPECT_EQ(FailureOf([&] { picture.LoadPictureFromMem(block.data(), 0); }), kWrongParameter);
  EXPECT_EQ(FailureOf([&] { picture.LoadPictureFromMem(block.data(), -1); }), kWrongParameter);
  EXPECT_EQ(Bytes(picture), kABC);
}

TEST(Picture, FixedStatedLengthBelowTheContentCutsIt) {
  CPicture picture;
  LoadRecord(picture, Record("2", "YWJj"));
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{'a', 'b'}));
  CPicture empty;
  LoadRecord(empty, Record("0", "YWJj"));
  EXPECT_EQ(empty.GetPictureLength(), 0);
}

// Attack: a length beyond the content would read what lies behind it.
TEST(Picture, StatedLengthBeyondTheContentGivesZeroBytes) {
  CPicture picture;
  LoadRecord(picture, Record("6", "YWJj"));
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{'a', 'b', 'c', 0, 0, 0}));
}

// Attack: a length without bytes would take any amount of memory.
TEST(Picture, StatedLengthBeyondTheContentHasALimit) {
  CPicture picture;
  LoadRecord(picture, Record(std::to_string(zeb::kGreatestUnbackedPicture), "YWJj"));
  EXPECT_EQ(picture.GetPictureLength(), 64 * 1024 * 1024);
  EXPECT_EQ(picture.GetPictureData()[picture.GetPictureLength() - 1], 0);

  const std::string tooLong = Record(std::to_string(zeb::kGreatestUnbackedPicture + 1), "YWJj");
  EXPECT_EQ(FailureOf([&] { LoadRecord(picture, tooLong); }), kNoMoreMemoryLeft);
  EXPECT_EQ(picture.GetPictureData(), nullptr);
  EXPECT_EQ(picture.GetPictureLength(), 0);
}

// Attack: many small records, each of which claims what is just allowed to one.
TEST(Picture, PicturesOfOneFileShareTheLimit) {
  CIDManager ids;
  constexpr int kHalf = zeb::kGreatestUnbackedPicture / 2;
  CPicture first;
  LoadRecord(first, Record(std::to_string(kHalf + 3), "YWJj"), ids);
  CPicture second;
  LoadRecord(second, Record(std::to_string(kHalf + 3), "YWJj"), ids);
  EXPECT_EQ(second.GetPictureLength(), kHalf + 3);
  CPicture third;
  LoadRecord(third, Record("3", "YWJj"), ids);
  EXPECT_EQ(Bytes(third), kABC) << "content that is there counts for nothing";
  EXPECT_EQ(FailureOf([&] { LoadRecord(third, Record("4", "YWJj"), ids); }), kNoMoreMemoryLeft);
  CIDManager other;
  LoadRecord(third, Record("4", "YWJj"), other);
  EXPECT_EQ(third.GetPictureLength(), 4);
}

TEST(Picture, NegativeLengthCannotBeAllocated) {
  CPicture picture;
  EXPECT_EQ(FailureOf([&] { LoadRecord(picture, Record("-1", "YWJj")); }), kNoMoreMemoryLeft);
  EXPECT_EQ(picture.GetPictureData(), nullptr);
}

TEST(Picture, ContentThatIsNoBase64GivesZeroBytes) {
  CPicture picture;
  LoadRecord(picture, Record("2", "!!"));
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{0, 0}));
}

TEST(Picture, ContentMayBeBrokenIntoLines) {
  CPicture picture;
  LoadRecord(picture, Record("3", "\n  YW\n  Jj\n"));
  EXPECT_EQ(Bytes(picture), kABC);
}

TEST(Picture, ContentReplacesThePresentBlock) {
  CPicture picture;
  Fill(picture, {1, 2, 3, 4, 5});
  LoadRecord(picture, Record("3", "YWJj"));
  EXPECT_EQ(Bytes(picture), kABC);
}

TEST(Picture, LengthWithoutContentIsSetWhileTheBlockStaysNull) {
  for (const char* const tail : {"", "<PictureData/>", "<PictureData><Other/></PictureData>"}) {
    CPicture picture;
    LoadRecord(picture,
               std::string("<Picture><PictureDataLength>5</PictureDataLength>") + tail + "</Picture>");
    EXPECT_EQ(picture.GetPictureLength(), 5);
    EXPECT_EQ(picture.GetPictureData(), nullptr);
    EXPECT_EQ(SaveRecord(picture), Record("5", "").replace(Record("5", "").find("<BinaryData></BinaryData>"),
                                                           25, "<BinaryData/>"));
  }
}

// Attack: a second record of one picture states more bytes than the first one brought.
TEST(Picture, LengthWithoutContentNeverExceedsTheBlock) {
  CPicture picture;
  Fill(picture, kABC);
  LoadRecord(picture, "<Picture><PictureDataLength>1000</PictureDataLength></Picture>");
  EXPECT_EQ(picture.GetPictureLength(), 1000);
  EXPECT_EQ(picture.GetPictureData(), nullptr);

  Fill(picture, kABC);
  LoadRecord(picture, "<Picture><PictureDataLength>2</PictureDataLength></Picture>");
  EXPECT_EQ(Bytes(picture), (std::vector<unsigned char>{'a', 'b'}));
}

TEST(Picture, NegativeLengthWritesNoContent) {
  CPicture picture;
  Fill(picture, kABC);
  LoadRecord(picture, "<Picture><PictureDataLength>-3</PictureDataLength></Picture>");
  EXPECT_NE(SaveRecord(picture).find("<PictureDataLength>-3</PictureDataLength><PictureData><BinaryData/>"),
            std::string::npos);
}

TEST(Picture, FixedOldScalingIsAcceptedAndNotKept) {
  CPicture picture;
  std::string record = Record("3", "YWJj");
  record.insert(record.find("</Picture>"), "<PictureScaling>2</PictureScaling>");
  LoadRecord(picture, record);
  EXPECT_EQ(Bytes(picture), kABC);
  EXPECT_EQ(SaveRecord(picture), Record("3", "YWJj"));
}

TEST(Picture, ReadingEndsAtAnElementOutOfOrder) {
  CPicture picture;
  LoadRecord(picture,
             "<Picture><PictureData><BinaryData>YWJj</BinaryData></PictureData>"
             "<PictureDataLength>3</PictureDataLength></Picture>");
  EXPECT_EQ(picture.GetPictureLength(), 0);
  EXPECT_EQ(picture.GetPictureData(), nullptr);
}

TEST(Picture, FixedCopySharesTheBlock) {
  CPicture source;
  Fill(source, kABC);
  source.SetWidth(4.0F);
  const CPicture copy(source);
  EXPECT_EQ(copy.GetPictureData(), source.GetPictureData());
  EXPECT_EQ(copy.GetPictureLength(), 3);
  EXPECT_EQ(copy.GetWidth(), 4.0F);
  // Assignment frees nothing: the copy alone owns the block from here on.
  source = CPicture();
  EXPECT_EQ(source.GetPictureData(), nullptr);
  EXPECT_EQ(Bytes(copy), kABC);
}

}  // namespace
