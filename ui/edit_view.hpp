// The text on the screen: lays a window over the edit control's model and hands keys, mouse, input method and
// drops to the rules of MainText. Paints the rows that show, with line numbers, position text, guide lines
// and line-end marks. Lines and rows count from 0, lengths are logical pixels of the viewport unless stated.
#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "document/edit_control/edit_control.hpp"
#include "document/input_mode.hpp"
#include "document/main_text.hpp"
#include "ui/color_scheme.hpp"
#include "ui/edit_view_painter.hpp"
#include "ui/gutter.hpp"
#include "ui/line_end_marks.hpp"
#include "ui/line_layout_cache.hpp"

class QMimeData;

namespace kestri {

class AccessibilityTeller;

class EditView : public QAbstractScrollArea, public EditControlEvents, public ColumnMetrics {
  Q_OBJECT
 public:
  // Registers itself with the control, which must outlive the view, and hands the control's Change to the
  // rules.
  EditView(EditControl& control, MainText& text, QWidget* parent = nullptr);
  ~EditView() override;

  std::function<bool(QKeyEvent&)> keyFilter;  // sees every key press first; true: consumed
  std::function<void()> compositionStarted;   // the input method opened a pre-edit
  std::function<void()> inputModeChanged;     // by SetInputMode, or by the input method's key in mode Off
  std::function<void()> caretMoved;           // once an event, after caret, selection or text changed
  std::function<QString(std::u16string_view)> familyOf;  // font family for a font name of the settings

  EditControl& Control() const { return control_; }
  MainText& Rules() const { return text_; }

  // Look. Set familyOf before the first font. The font's name is the settings' one; "Ｐ" in it turns line-end
  // marks off.
  void SetTextFont(std::u16string_view name, double points);
  void SetColorScheme(const ColorScheme& scheme);
  void SetGuideLines(bool on);
  void SetLineEndMarks(bool on, int eofMarkType);
  bool LineEndMarksShown() const {
    return marksOn_ && FontAllowsLineEndMarks(fontName_) && text_.Subclassed();
  }
  bool LineNumbersShown() const { return text_.Subclassed(); }  // with the position text at their head
  bool GuideLinesShown() const { return guidesOn_ && text_.Subclassed(); }
  // Lays the rules over the text, mode 1, or takes them off, with everything that shows of them: without them
  // there are no line numbers, no position text, no line-end marks and no guide lines, whatever is set.
  void InstallSubclass(int mode);
  const TextStyle& Style() const { return layouts_.Style(); }

  // What the window forwards from MainText's host interface.
  void SetTextHidden(bool hidden);
  void PaintTextDecor(MainTextHost::Decor rows);
  void ResetCaretMemo();

  // Bottom of the caret's line in global pixels; (-9999, -9999) when the caret is outside the visible area.
  QPoint GetCaretPixel();
  QRect CaretRect();  // in the viewport, also outside of what shows
  struct ScrollState {
    std::int32_t firstLine = 0;
    int x = 0;
  };
  ScrollState ScrollPosition();
  void SetScrollPosition(ScrollState state);
  void EnsureCaretVisible();
  bool Composing() const { return !preedit_.text.isEmpty(); }
  // A composition that is open enters the text first, in the script of the mode so far.
  void SetInputMode(InputMode mode);
  // What the input method is composing goes into the text, as when the text loses the keyboard.
  void CommitComposition();
  InputMode ChosenInputMode() const { return inputMode_; }
  std::int32_t FirstVisibleLine() const;
  int VisibleRows() const;  // whole rows, at least 1
  Position PositionAtPoint(QPoint viewportPoint);
  QRect RectOf(Position position);  // of the character at the position, in the viewport
  // What a drag of the selection within the text ends in.
  void MoveOrCopySelection(Position to, Qt::DropAction action);
  // Brings scroll bars, gutter and guide lines up to date now instead of when the event ends.
  void Flush();

  // What the text frame shows.
  const Gutter& LineNumbers() const { return *gutter_; }
  const PositionStrip& PositionDisplay() const { return *strip_; }
  const GuideLines& Guides() const { return guides_; }
  AccessibilityTeller& Accessibility() { return *teller_; }

  void TextReplaced(const TextChange& change) override;
  void SelectionChanged() override;
  void ScrollCaret() override;
  void RedrawSwitched(bool on) override;
  void Change() override;

  double XOf(Position position) override;
  Position PositionAt(std::int32_t line, double x) override;
  std::int32_t PageLines() override;

  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // What changed since the last Flush.
  struct Pending {
    bool any = false;
    bool all = false;
    bool text = false;
    bool scrollCaret = false;
    bool startOver = false;  // another text: both scroll bars begin at 0
    std::int32_t firstDirty = INT32_MAX;
    std::int32_t lastDirty = -1;
    Position fromColumn = 0;     // of the only dirty line: what stands left of it is as it was
    std::int32_t shiftFrom = 0;  // lines from here on moved down by shiftBy
    std::int32_t shiftBy = 0;
    std::int32_t anchorBy = 0;  // lines put in above what shows
  };
  struct ShownSelection {
    Position begin = 0;
    Position end = 0;
    std::int32_t beginLine = 0;
    std::int32_t endLine = 0;
    bool Empty() const { return begin == end; }
    bool operator==(const ShownSelection&) const = default;
  };
  enum class Grasp { None, Selecting, MaybeDrag };  // what a held left button does
  enum class SelectionUnit { Character, Word, Line };

  static constexpr int kTextMargin = 4;  // left of the text

  // edit_view.cpp: look, geometry, events of the widget.
  void RebuildStyle();
  void RebuildMarks();
  void RefreshColors();
  void LayOutFrame();
  void PlaceFrame();
  bool LineShows(std::int32_t line) const;
  int RowTop(std::int32_t line) const;
  double TextLeft() const;
  void CarryCaret(int dx, int dy);
  QRect CaretWhereItShows();
  void RestartBlink();
  void PaintCaret(QPainter& painter);

  // edit_view_refresh.cpp: what changed, and bringing the screen up to date.
  void Schedule();
  void Post();
  bool Frozen() const { return hidden_ || !redraw_; }
  void Thaw();
  void BringUpToDate(const Pending& pending);
  void NoteNewText();
  void NoteDirtyRows(const TextChange& change);
  void NoteLinesShifted(const TextChange& change);
  void StartOver();
  void FollowLinesAbove(std::int32_t by);
  void UpdateScrollRanges();
  void NoteWidth(double width);
  void UpdateRows(std::int32_t firstLine, std::int32_t lastLine, int left = 0);
  int LeftOfChange(const Pending& pending);
  void ShiftRows(std::int32_t fromLine, std::int32_t by);
  void UpdateChangedRows(const Pending& pending);
  void UpdateSelectionRows(bool textChanged);
  ShownSelection CurrentSelection() const;
  void UpdateCaret();
  void UpdateDecor();
  void MoveGuides();
  std::optional<GuideRects> ShownGuides() const;

  // edit_view_input.cpp: keys and input method.
  bool OwnsKey(const QKeyEvent& event) const;
  bool ControlKey(QKeyEvent& event);
  bool CharacterKey(QKeyEvent& event);
  bool CommandKey(QKeyEvent& event);
  void PageKey(EditKey key, KeyModifiers modifiers);
  void FinishUserEdit();
  void PrepareNextEdit();
  void ApplyInset();
  void SetPreedit(const QInputMethodEvent& event);
  void TakeAttribute(const QInputMethodEvent::Attribute& attribute);
  void CommitFromInputMethod(const QInputMethodEvent& event);
  bool SelectForInputMethod(const QInputMethodEvent& event);
  QPair<Position, Position> SurroundingRange() const;

  // edit_view_input_mode.cpp: whether the input method may take keys.
  bool InputMethodAllowed() const;
  Qt::InputMethodHints InputHints() const;
  bool SwitchesInputMethodOn(const QKeyEvent& event);

  // edit_view_mouse.cpp: mouse, menu, the selection clipboard.
  void PressLeft(QMouseEvent& event);
  void PressMiddle(QPoint point);
  void ExtendTo(QPoint point);
  void SelectUnits(Position to);
  std::pair<Position, Position> UnitAt(Position position) const;
  void SelectLines(std::int32_t anchorLine, std::int32_t line);
  bool InSelection(QPoint point);
  void AutoScroll();
  void PublishSelection();
  void ShowStandardMenu(QPoint global);

  // edit_view_drop.cpp: drag and drop.
  void StartDrag();
  MainText::Drop DropFromOutside(const QMimeData& dropped, Position at);
  void SetDropCaret(Position at);

  EditControl& control_;
  MainText& text_;
  LineLayoutCache layouts_;
  LineEndMarks marks_;
  TextColors colors_;
  ColorScheme scheme_;
  GuideLines guides_;
  Gutter* gutter_;
  PositionStrip* strip_;
  std::u16string fontName_ = u"ＭＳ ゴシック";
  double fontPoints_ = 14;
  int eofMarkType_ = 0;
  bool marksOn_ = true;
  bool guidesOn_ = false;
  bool styleBuilt_ = false;

  Pending pending_;
  bool flushing_ = false;
  bool hidden_ = false;
  bool redraw_ = true;
  ShownSelection shown_;
  QRect shownCaret_;
  QPoint caretMemo_{-10000, -10000};
  int caretWidth_ = 2;
  double seenWidth_ = 0;  // of the widest line that was shown
  bool anchoring_ = false;

  bool caretLit_ = false;
  QBasicTimer blinkTimer_;
  QBasicTimer idleTimer_;
  QBasicTimer pictureTimer_;  // runs from a painting until the next scrolling or resizing at most
  QPoint paintedPixel_;       // of the window
  QBasicTimer autoScrollTimer_;

  bool homePressed_ = false;  // here, and not released yet

  Inset preedit_;
  int preeditCursor_ = 0;
  bool preeditCursorShown_ = true;
  InputMode inputMode_ = InputMode::Default;

  Grasp grasp_ = Grasp::None;
  SelectionUnit unit_ = SelectionUnit::Character;
  std::pair<Position, Position> unitAnchor_;
  QPoint pressPoint_;
  QPoint lastPoint_;
  QElapsedTimer sinceDoubleClick_;
  QPoint doubleClickPoint_;
  Position dropCaret_ = -1;
  bool droppedInside_ = false;
  bool dragBringsText_ = false;
  bool selectionUnpublished_ = false;
  std::int32_t gutterAnchor_ = 0;

  std::unique_ptr<AccessibilityTeller> teller_;
};

}  // namespace kestri
