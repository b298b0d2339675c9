#include "platform/qt/qt_message_box.hpp"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <vector>

#include "platform/qt/dialog_owner.hpp"
#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

struct Button {
  MessageAnswer answer;
  const char16_t* caption;
  QMessageBox::ButtonRole role;
};

std::vector<Button> ButtonsOf(MessageButtons buttons) {
  const Button ok{MessageAnswer::Ok, u"OK(&O)", QMessageBox::AcceptRole};
  const Button cancel{MessageAnswer::Cancel, u"キャンセル(&C)", QMessageBox::RejectRole};
  const Button yes{MessageAnswer::Yes, u"はい(&Y)", QMessageBox::YesRole};
  const Button no{MessageAnswer::No, u"いいえ(&N)", QMessageBox::NoRole};
  switch (buttons) {
    case MessageButtons::Ok:
      return {ok};
    case MessageButtons::OkCancel:
      return {ok, cancel};
    case MessageButtons::YesNo:
      return {yes, no};
    case MessageButtons::YesNoCancel:
      return {yes, no, cancel};
  }
  return {ok};
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return QMessageBox::Critical;
    case MessageIcon::Question:
      return QMessageBox::Question;
    case MessageIcon::Exclamation:
      return QMessageBox::Warning;
    case MessageIcon::Information:
      return QMessageBox::Information;
    case MessageIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

// The toolkit's label grows for words that can be broken only: places to break are put into long ones.
QString Breakable(const QString& text) {
  constexpr int kLongestWord = 40;
  constexpr QChar kBreak(0x200B);
  QString result;
  int run = 0;
  for (const QChar character : text) {
    const bool breaks = character.isSpace() || character.unicode() >= 0x2E80;
    run = breaks || run == kLongestWord ? 0 : run + 1;
    if (!breaks && run == 0) result += kBreak;
    result += character;
  }
  return result;
}

}  // namespace

MessageAnswer QtMessageBox::Ask(const MessageRequest& request) {
  QMessageBox box(DialogOwner(owner_));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(ToQt(request.caption));
  box.setText(Breakable(ToQt(request.text)));
  box.setIcon(IconOf(request.icon));

  const std::vector<Button> buttons = ButtonsOf(request.buttons);
  std::vector<QPushButton*> shown;
  for (const Button& button : buttons) shown.push_back(box.addButton(ToQt(button.caption), button.role));
  box.setDefaultButton(shown.at(static_cast<std::size_t>(request.defaultButton - 1)));
  box.setEscapeButton(shown.back());

  QApplication::setOverrideCursor(Qt::ArrowCursor);
  box.exec();
  QApplication::restoreOverrideCursor();
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (box.clickedButton() == shown[i]) return buttons[i].answer;
  }
  return buttons.back().answer;
}

}  // namespace kestri
