// The candidate popup's window. It never takes the keyboard focus: the text keeps it and hands its keys on,
// so no key is lost while the window comes or goes.
#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include "tags/candidate_view.hpp"
#include "tags/completion.hpp"

class QFrame;
class QKeyEvent;
class QInputMethodEvent;
class QListView;

namespace kestri {

class CandidateModel;
class TipLine;

class InToTAGFrm : public QWidget, public CandidateView {
  Q_OBJECT
 public:
  explicit InToTAGFrm(QWidget* parent);
  ~InToTAGFrm() override;

  void Attach(InToTAG* logic) { logic_ = logic; }
  // From now on the widget's keys and input method come here first while the popup is visible.
  void TakeKeysOf(QWidget* textView);
  // Key press, release or shortcut override of the text. True: consumed. Commands with Ctrl, Alt or a
  // function key close the popup and stay with the text.
  bool HandleKey(QKeyEvent* event);
  // Committed text goes to the popup's logic; a composition and a correction of what stands in the text close
  // the popup and stay with the text.
  bool HandleInputMethod(QInputMethodEvent* event);

  // CandidateView.
  PixelSize Size() override;
  void ShowAt(const PopupPlacement& placement, Animation animation) override;
  void SetRows(const std::vector<CandidateRow>& rows) override;
  void SetListVisible(bool visible) override;
  void MarkMode(std::int32_t mode) override;
  void Select(int row) override;
  void SelectAtTop(int row) override;
  int RowsPerPage() override;
  void ShowTip(std::u16string_view text, const CandidateIcon* icon) override;
  bool Visible() override { return shown_; }
  void Hide(Animation animation, Opens opened) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  enum class Slide { None, Out, Back };

  void Build();
  void BuildList();
  QSize FirstSize() const;
  void SetCurrent(int row);
  void StartSlide(Slide slide);
  void StopSlide();
  void PaintSlide(double share);
  void FinishSlide();
  void Resize(QPoint moved);
  bool FilterTextView(QEvent* event);
  bool ClosesPopup(QObject* watched, const QEvent& event) const;
  bool PressKey(const QKeyEvent& event);
  void Deactivate();

  InToTAG* logic_ = nullptr;
  QWidget* textView_ = nullptr;
  QFrame* body_ = nullptr;  // everything that shows; slides inside the window while that grows
  QListView* list_ = nullptr;
  CandidateModel* model_ = nullptr;
  TipLine* tipLine_ = nullptr;

  QVariantAnimation slide_;
  Slide sliding_ = Slide::None;
  PopupPlacement placement_;
  QSize preferred_;  // as the user made it
  QSize sizeAtGrip_;
  bool shown_ = false;
  bool selecting_ = false;  // the selection moves by the program, not by the mouse
};

}  // namespace kestri
