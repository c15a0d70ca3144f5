#include "foundation/ReadingTrace.h"

#include "foundation/RecordReader.h"
#include "foundation/XMLFile.h"
#include "foundation/XMLNode.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using zeb::ReadingFault;
using zeb::ReadingTrace;
using zeb::RecordReader;
using zeb::XMLFile;

class ReadingTraceTest : public testing::Test {
 protected:
  XMLFile Load(const std::string& text) {
    zebtest::WriteFile(m_Folder.File("file.xml"), text);
    return XMLFile::Load(m_Folder.WideFile("file.xml").c_str());
  }

  /// Reads the children of the root as the fields A and B, then any number of C.
  static void ReadFields(const XMLFile& file) {
    RecordReader reader(file.Root());
    int value = 0;
    reader.Read(L"A", value);
    reader.Read(L"B", value);
    while (reader.Read(L"C", value)) {
    }
  }

  /// What a trace finds in that reading, one line per element.
  std::vector<std::wstring> Trace(const std::string& text) {
    const ReadingTrace trace;
    ReadFields(Load(text));
    std::vector<std::wstring> lines;
    for (const zeb::ReadingFinding& finding : trace.Findings()) {
      lines.push_back(std::to_wstring(finding.Line) + L":" + std::to_wstring(finding.Column) + L" " +
                      finding.Path + L" " + std::to_wstring(static_cast<int>(finding.Fault)) + L" " +
                      finding.Text);
    }
    return lines;
  }

  zebtest::TempDir m_Folder;
};

using Lines = std::vector<std::wstring>;

TEST_F(ReadingTraceTest, NobodyListensWithoutATrace) {
  EXPECT_EQ(ReadingTrace::Active(), nullptr);
  {
    const ReadingTrace trace;
    EXPECT_EQ(ReadingTrace::Active(), &trace);
  }
  EXPECT_EQ(ReadingTrace::Active(), nullptr);
}

TEST_F(ReadingTraceTest, FindsNothingInACompleteReading) {
  EXPECT_EQ(Trace("<R><A>1</A><B>2</B><C>3</C><C>4</C></R>"), Lines{});
  EXPECT_EQ(Trace("<R><B>2</B></R>"), Lines{});
  EXPECT_EQ(Trace("<R/>"), Lines{});
}

TEST_F(ReadingTraceTest, TellsNamesThatNobodyAskedFor) {
  EXPECT_EQ(Trace("<R><A>1</A>\n <D>2</D></R>"), Lines{L"2:2 /R/D 0 nothing reads D in R"});
}

TEST_F(ReadingTraceTest, TellsOrderByTheOrderOfAsking) {
  EXPECT_EQ(Trace("<R><B>1</B>\n<A>2</A></R>"),
            Lines{L"2:1 /R/A 1 stands behind B in line 1, belongs before it"});
  EXPECT_EQ(Trace("<R><B>1</B>\n<C>2</C>\n<A>3</A></R>"),
            Lines{L"3:1 /R/A 1 stands behind C in line 2, belongs before B in line 1"});
}

TEST_F(ReadingTraceTest, TellsSecondOccurrencesOfWhatIsAskedForOnce) {
  EXPECT_EQ(Trace("<R><A>1</A>\n<A>2</A></R>"), Lines{L"2:1 /R/A[2] 2 A in line 1 is the one that is read"});
  EXPECT_EQ(Trace("<R><A>1</A>\n<C>1</C>\n<A>2</A></R>"),
            Lines{L"3:1 /R/A[2] 2 A in line 1 is the one that is read"});
}

TEST_F(ReadingTraceTest, TellsWhatHasEndedTheReading) {
  const Lines lines = Trace("<R><D/>\n<A>2</A>\n<C>3</C></R>");
  EXPECT_EQ(lines, (Lines{L"1:4 /R/D 0 nothing reads D in R", L"2:1 /R/A 4 D in line 1 ends the reading of R",
                          L"3:1 /R/C 4 D in line 1 ends the reading of R"}));
}

TEST_F(ReadingTraceTest, TellsElementsInTexts) {
  EXPECT_EQ(Trace("<R><A><B>1</B></A></R>"), Lines{L"1:7 /R/A/B 0 A is read as a text without elements"});
}

TEST_F(ReadingTraceTest, TellsNothingOfWhatIsInAnElementThatWasLeftOut) {
  EXPECT_EQ(Trace("<R><D><A>1</A><E/></D></R>"), Lines{L"1:4 /R/D 0 nothing reads D in R"});
}

TEST_F(ReadingTraceTest, TakesWhatWasAskedForAndThenPassed) {
  const ReadingTrace trace;
  {
    const XMLFile file = Load("<R><A><X/></A><B/></R>");
    RecordReader reader(file.Root());
    while (reader.Is(L"A")) reader.Next();
  }
  ASSERT_EQ(trace.Findings().size(), 1U);
  EXPECT_EQ(trace.Findings().front().Path, L"/R/B");
}

TEST_F(ReadingTraceTest, TellsWhatWasPassedWithoutAName) {
  const ReadingTrace trace;
  {
    const XMLFile file = Load("<R><A/><B/></R>");
    RecordReader reader(file.Root());
    while (!reader.AtEnd() && !reader.Is(L"B")) reader.Next();
    reader.StepOver(L"B");
  }
  ASSERT_EQ(trace.Findings().size(), 1U);
  EXPECT_EQ(trace.Findings().front().Path, L"/R/A");
  EXPECT_EQ(trace.Findings().front().Fault, ReadingFault::UnknownName);
}

TEST_F(ReadingTraceTest, TakesWhatIsReadWhateverItsName) {
  const ReadingTrace trace;
  {
    const XMLFile file = Load("<R><A><B>1</B></A></R>");
    RecordReader reader(file.Root());
    int value = 0;
    RecordReader(reader.Current()).Read(L"B", value);
    reader.Next();
  }
  EXPECT_TRUE(trace.Findings().empty());
}

TEST_F(ReadingTraceTest, ListensToTheFirstDocumentOnly) {
  const ReadingTrace trace;
  {
    const XMLFile first = Load("<R><D/></R>");
    const XMLFile second = Load("<S><E/></S>");
    ReadFields(second);
    ReadFields(first);
  }
  ReadFields(Load("<T><F/></T>"));
  ASSERT_EQ(trace.Findings().size(), 1U);
  EXPECT_EQ(trace.Findings().front().Path, L"/R/D");
}

TEST_F(ReadingTraceTest, ForgetsAReferenceWhoseRecordFollows) {
  const ReadingTrace trace;
  {
    const XMLFile file = Load("<R><A>1</A>\n<B>2</B></R>");
    RecordReader reader(file.Root());
    int id = 0;
    reader.Read(L"A", id);
    ReadingTrace::Active()->NoteReference(id);
    reader.Read(L"B", id);
    ReadingTrace::Active()->NoteReference(id);
    ReadingTrace::Active()->NoteRecord(1);
  }
  ASSERT_EQ(trace.Findings().size(), 1U);
  EXPECT_EQ(trace.Findings().front().Path, L"/R/B");
  EXPECT_EQ(trace.Findings().front().Fault, ReadingFault::IdentifierWithoutObject);
  EXPECT_EQ(trace.Findings().front().Text, L"no record that is read has the identifier 2");
}

// A hundred thousand elements of one name behind one that ends the reading: time grows with their number, not its square.
TEST_F(ReadingTraceTest, StaysInProportion) {
  std::string text = "<R><C>1</C><B/>";
  for (int i = 0; i < 100000; ++i) text += i % 2 == 0 ? "<A/>" : "<C/>";
  EXPECT_EQ(Trace(text + "</R>").size(), 100001U);
}

}  // namespace
