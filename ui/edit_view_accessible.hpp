// The text for screen readers. Nothing here costs anything while no assistive technology listens.
#pragma once

#include <QAccessibleWidget>
#include <functional>
#include <string>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

class EditView;

// Once is enough; every further call is ignored.
void InstallEditViewAccessibility();

// Tells assistive technology of changes while any listens. The surroundings of the caret are remembered from
// one event to the next, because a change is told after the removed text has gone.
class AccessibilityTeller : public QAccessible::ActivationObserver {
 public:
  explicit AccessibilityTeller(EditView& view);
  ~AccessibilityTeller() override;
  AccessibilityTeller(const AccessibilityTeller&) = delete;
  AccessibilityTeller& operator=(const AccessibilityTeller&) = delete;

  std::function<void(QAccessibleEvent*)> send = QAccessible::updateAccessibility;

  void TextReplaced(const TextChange& change);
  void CaretMoved();
  void accessibilityActiveChanged(bool active) override;

 private:
  void Remember();
  QString Removed(const TextChange& change) const;

  EditView& view_;
  bool listening_;
  Position begin_ = 0;
  std::u16string remembered_;
  Position toldCaret_ = -1;
  Position toldAnchor_ = -1;
};

class EditViewAccessible : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface {
 public:
  explicit EditViewAccessible(EditView& view);

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;

  // Selection 0 is the text's one selection.
  void selection(int index, int* begin, int* end) const override;
  int selectionCount() const override;
  void addSelection(int begin, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int begin, int end) override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override;
  QString text(int begin, int end) const override;
  QString textBeforeOffset(int offset, QAccessible::TextBoundaryType unit, int* begin,
                           int* end) const override;
  QString textAfterOffset(int offset, QAccessible::TextBoundaryType unit, int* begin,
                          int* end) const override;
  QString textAtOffset(int offset, QAccessible::TextBoundaryType unit, int* begin, int* end) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int begin, int end) override;
  QString attributes(int offset, int* begin, int* end) const override;

  void deleteText(int begin, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int begin, int end, const QString& text) override;

 private:
  EditView& View() const;
  EditControl& Control() const;
  std::pair<Position, Position> UnitAt(Position offset, QAccessible::TextBoundaryType unit) const;
  QString Answer(std::pair<Position, Position> range, int* begin, int* end) const;
};

}  // namespace kestri
