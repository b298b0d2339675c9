// What a multi-line text control answers, message by message, as recorded in edit.tsv.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "document/edit_control/edit_control.hpp"
#include "shell/common/code_page.hpp"
#include "tests/fakes/oracle_rows.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

enum Column {
  kCase,
  kTitle,
  kBeforeText,
  kBeforeStart,
  kBeforeEnd,
  kMessage,
  kReturn,
  kAfterText,
  kAfterStart,
  kAfterEnd,
  kLineCount,
  kCanUndo,
  kModify,
  kEnChange,
};

// Rows that this control answers otherwise on purpose, by case or by single step.
enum class Differs { WholeRow, LineCount };
struct Exclusion {
  std::string_view row;  // "5." is the whole case
  Differs differs;
  std::string_view reason;
};
constexpr Exclusion kExclusions[] = {
    {"3.2", Differs::WholeRow, "undo with nothing to undo does nothing"},
    {"4.3", Differs::WholeRow, "undo with nothing to undo does nothing"},
    {"5.3", Differs::WholeRow, "each insertion of the program is a step of its own"},
    {"5.4", Differs::WholeRow, "follows 5.3"},
    {"9.2", Differs::WholeRow, "undo with nothing to undo does nothing"},
    {"12.1", Differs::LineCount, "a lone LF ends no line"},
    {"12.2", Differs::LineCount, "a lone LF ends no line"},
    {"12.3", Differs::WholeRow, "each insertion of the program is a step of its own"},
    {"17.", Differs::WholeRow, "undo with nothing to undo does nothing"},
    {"25.4", Differs::WholeRow, "typing after Backspace is a run of its own"},
    {"25.5", Differs::WholeRow, "follows 25.4"},
    {"31.3", Differs::WholeRow, "each insertion of the program is a step of its own"},
    {"31.4", Differs::WholeRow, "follows 31.3"},
    {"38.6", Differs::WholeRow, "undo with nothing to undo does nothing"},
    {"43.1", Differs::WholeRow, "Backspace deletes both halves of a surrogate pair"},
    {"46.2", Differs::WholeRow, "undo with nothing to undo does nothing"},
    {"50.2", Differs::WholeRow, "Down keeps the column it set out from"},
    {"51.7", Differs::WholeRow, "the caret never stands between CR and LF"},
    {"51.8", Differs::WholeRow, "the caret never stands between CR and LF"},
    {"51.9", Differs::WholeRow, "the caret never stands between CR and LF"},
    {"52.", Differs::WholeRow, "the caret never stands between CR and LF"},
    {"53.", Differs::WholeRow, "the caret never stands between CR and LF"},
    {"56.7", Differs::WholeRow, "cut and paste are two steps"},
    {"56.8", Differs::WholeRow, "follows 56.7"},
    {"56.10", Differs::LineCount, "a lone LF ends no line"},
    {"56.11", Differs::WholeRow, "each paste is a step of its own"},
    {"65.5", Differs::WholeRow, "the CR before CR LF is an ordinary character, so it counts"},
    {"66.", Differs::WholeRow, "a lone LF ends no line"},
    {"71.1", Differs::WholeRow, "sets the selection through an interface in bytes"},
    {"71.4", Differs::WholeRow, "counts in bytes"},
    {"71.6", Differs::WholeRow, "a character sent byte by byte"},
    {"71.7", Differs::WholeRow, "a character sent byte by byte"},
};

// A paste whose text the row does not name.
const std::map<std::string, std::u16string> kPasted = {{"56.9", u"p1\r\np2"}, {"56.10", u"q1\nq2\rq3"}};

int Number(std::string_view field) {
  int number = 0;
  std::from_chars(field.data(), field.data() + field.size(), number);
  return number;
}

bool Covers(std::string_view excluded, std::string_view row) {
  return excluded.ends_with('.') ? row.starts_with(excluded) : row == excluded;
}

bool Excluded(std::string_view row, Differs differs) {
  return std::any_of(std::begin(kExclusions), std::end(kExclusions),
                     [&](const Exclusion& e) { return e.differs == differs && Covers(e.row, row); });
}

class ChangeCounter : public EditControlEvents {
 public:
  void Change() override { ++changes; }
  int changes = 0;
};

// One row: the control is brought to the state before it unless it is there already, then takes the message.
class OracleRun {
 public:
  OracleRun() { control_.SetEvents(&events_); }

  void Play(const fakes::OracleRow& row) {
    row_ = &row;
    SCOPED_TRACE(row[kCase] + " " + row[kTitle] + ": " + row[kMessage]);
    const bool repeatedUndo = IsUndo() && lastWasUndo_;
    Prepare();
    events_.changes = 0;
    const std::string answer = Send(repeatedUndo && !lastWasRedo_);
    const bool redone = repeatedUndo && !lastWasRedo_;
    if (!Excluded(row[kCase], Differs::WholeRow)) Check(answer, redone);
    lastWasRedo_ = redone;
    lastWasUndo_ = IsUndo();
  }

 private:
  std::string Field(Column column) const { return (*row_)[column]; }
  bool IsUndo() const {
    const std::string message = Field(kMessage);
    return message.starts_with("EM_UNDO") || message == "WM_CHAR \\u001A";
  }

  void Prepare() {
    const std::string caseNumber = Field(kCase).substr(0, Field(kCase).find('.'));
    const std::u16string text = fakes::OracleText(Field(kBeforeText));
    if (caseNumber != case_ || control_.Text() != text) {
      control_.SetText(text);
      control_.SetLocked(Field(kTitle) == "read-only control");
      lastWasUndo_ = lastWasRedo_ = false;
    }
    case_ = caseNumber;
    const Position start = Number(Field(kBeforeStart));
    const Position end = Number(Field(kBeforeEnd));
    const bool selected = control_.SelStart() == start && control_.SelStart() + control_.SelLength() == end;
    if (!selected) control_.EM_SETSEL(start, end);
  }

  // What it answered, when the row tells what that should be.
  std::string Send(bool redo) {
    const std::string message = Field(kMessage);
    if (redo) return control_.EM_REDO() ? "1" : "0";
    if (IsUndo()) return SendUndo(message);
    if (message.starts_with("WM_CHAR")) return SendCharacters(message);
    if (message.starts_with("WM_KEYDOWN")) return SendKey(message);
    if (message.starts_with("EM_REPLACESEL")) return SendReplaceSel(message);
    if (message.starts_with("SendMessageA EM_REPLACESEL")) {
      control_.EM_REPLACESEL(true, code_page::Decode("\x83\x5C"));
      return "";
    }
    if (message.starts_with("EM_GETLINE")) return SendGetLine(message);
    if (message.starts_with("clipboard is")) return "";
    return SendPlain(message);
  }

  std::string SendUndo(const std::string& message) {
    if (!message.starts_with("WM_CHAR")) return control_.EM_UNDO() ? "1" : "0";
    control_.WM_CHAR(26);
    return "";
  }

  std::string SendCharacters(const std::string& message) {
    constexpr std::string_view kEach = "WM_CHAR each of ";
    constexpr std::string_view kOne = "WM_CHAR ";
    const std::size_t skip = message.starts_with(kEach) ? kEach.size() : kOne.size();
    for (const char16_t unit : fakes::OracleText(message.substr(skip))) control_.WM_CHAR(unit);
    return "";
  }

  std::string SendKey(const std::string& message) {
    static const std::map<std::string, EditKey> keys = {{"LEFT", EditKey::Left},    {"RIGHT", EditKey::Right},
                                                        {"UP", EditKey::Up},        {"DOWN", EditKey::Down},
                                                        {"HOME", EditKey::Home},    {"END", EditKey::End},
                                                        {"DELETE", EditKey::Delete}};
    control_.WM_KEYDOWN(keys.at(message.substr(message.find("VK_") + 3)), {});
    return "";
  }

  std::string SendReplaceSel(const std::string& message) {
    const std::size_t quote = message.find('"') + 1;
    const auto text = fakes::OracleText(message.substr(quote, message.rfind('"') - quote));
    control_.EM_REPLACESEL(message.find("(1,") != std::string::npos, text);
    return "";
  }

  std::string SendGetLine(const std::string& message) {
    const int line = Number(message.substr(message.find("line ") + 5));
    const int size = Number(message.substr(message.find("size ") + 5));
    const std::string bytes = control_.EM_GETLINE(line, static_cast<std::size_t>(size));
    return std::to_string(bytes.size()) + " \"" + bytes + '"';
  }

  // A line's answer shows the buffer, with a NUL behind the line or without: nothing to rely on.
  std::string ExpectedAnswer() const {
    std::string expected = Field(kReturn);
    const std::size_t note = expected.find(" [");
    if (note != std::string::npos) expected.replace(note, expected.rfind('"') - note, "");
    return fakes::OracleBytes(expected);
  }

  std::string SendPlain(const std::string& message) {
    const std::size_t open = message.find('(');
    const std::string name = message.substr(0, open);
    const int first = Number(message.substr(open + 1));
    const std::size_t comma = message.find(',', open);
    const int second = comma == std::string::npos ? 0 : Number(message.substr(comma + 1));
    if (name == "EM_SETSEL") return control_.EM_SETSEL(first, second), "";
    if (name == "WM_CUT") return control_.WM_CUT(), "";
    if (name == "WM_CLEAR") return control_.WM_CLEAR(), "";
    if (name == "WM_PASTE") return Paste(), "";
    if (name == "EM_LINEINDEX" || name == "SendMessageA EM_LINEINDEX") {
      return std::to_string(control_.EM_LINEINDEX(first));
    }
    if (name == "EM_LINELENGTH" || name == "SendMessageA EM_LINELENGTH") {
      return std::to_string(control_.EM_LINELENGTH(first));
    }
    if (name == "EM_LINEFROMCHAR") return std::to_string(control_.EM_LINEFROMCHAR(first));
    if (name == "WM_GETTEXTLENGTH") return std::to_string(control_.Length());
    if (!Excluded(Field(kCase), Differs::WholeRow)) ADD_FAILURE() << "no such message: " << message;
    return "";
  }

  void Paste() {
    const auto named = kPasted.find(Field(kCase));
    if (named != kPasted.end()) clipboard_.text = named->second;
    control_.WM_PASTE();
  }

  void Check(const std::string& answer, bool redone) {
    if (!answer.empty()) {
      EXPECT_EQ(answer, ExpectedAnswer());
    }
    const std::string expected = Field(kAfterText) == "(same)" ? Field(kBeforeText) : Field(kAfterText);
    EXPECT_EQ(control_.Text(), fakes::OracleText(expected));
    if (!redone) {  // the old single level had no redo, its second undo selected what it brought back
      EXPECT_EQ(control_.SelStart(), Number(Field(kAfterStart)));
      EXPECT_EQ(control_.SelStart() + control_.SelLength(), Number(Field(kAfterEnd)));
    }
    if (!Excluded(Field(kCase), Differs::LineCount)) {
      EXPECT_EQ(control_.EM_GETLINECOUNT(), Number(Field(kLineCount)));
    }
    EXPECT_EQ(control_.EM_CANUNDO() || control_.EM_CANREDO(), Field(kCanUndo) == "1");
    EXPECT_EQ(control_.Modified(), Field(kModify) == "1");
    const int changes = Number(Field(kEnChange));
    EXPECT_EQ(events_.changes, IsUndo() ? std::min(changes, 1) : changes);
    EXPECT_TRUE(control_.CheckInvariants());
  }

  fakes::FakeClipboard clipboard_;
  EditControl control_{clipboard_};
  ChangeCounter events_;
  const fakes::OracleRow* row_ = nullptr;
  std::string case_;
  bool lastWasUndo_ = false;
  bool lastWasRedo_ = false;
};

TEST(EditOracle, EveryCertainRowIsAnsweredAsRecorded) {
  OracleRun run;
  const auto rows = fakes::ReadOracleRows(KESTRI_TEST_DATA "/edit.tsv");
  ASSERT_EQ(rows.size(), 280u);
  for (const fakes::OracleRow& row : rows) run.Play(row);
}

TEST(EditOracle, EveryExclusionNamesARow) {
  const auto rows = fakes::ReadOracleRows(KESTRI_TEST_DATA "/edit.tsv");
  for (const Exclusion& exclusion : kExclusions) {
    const bool found = std::any_of(rows.begin(), rows.end(), [&](const fakes::OracleRow& row) {
      return Covers(exclusion.row, row[kCase]);
    });
    EXPECT_TRUE(found) << exclusion.row << ": " << exclusion.reason;
  }
}

}  // namespace
}  // namespace kestri
