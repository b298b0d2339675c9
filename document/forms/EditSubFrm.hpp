// The small tool window whose menus put special characters, colour names and font names into the text.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "document/text_transforms.hpp"

class QMenu;
class QMenuBar;

namespace kestri {

class EditSubFrm : public QWidget {
  Q_OBJECT
 public:
  // A dialog that is given its title and answers with the text to put in; nothing when it was cancelled.
  // Without one the menu's entry is disabled.
  using AskText = std::function<std::optional<std::u16string>(std::u16string_view title)>;
  struct Dialogs {
    AskText color;
    AskText font;
  };

  EditSubFrm(TextTransforms& transforms, const ClassCommon& common, MainTextHost& host, Dialogs dialogs,
             QWidget* owner = nullptr);
  ~EditSubFrm() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;  // Esc closes
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();
  void AddRow(QMenu* menu, std::u16string_view caption, std::function<void()> insert);
  void AddDialog(QMenu* menu, std::u16string_view caption, std::u16string_view title, const AskText& ask);
  void BackToText();
  void Restore();
  void Keep();

  TextTransforms& transforms_;
  const ClassCommon& common_;
  MainTextHost& host_;
  Dialogs dialogs_;
  QMenuBar* bar_ = nullptr;
};

}  // namespace kestri
