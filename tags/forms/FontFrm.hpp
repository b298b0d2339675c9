// The font picker: the screen's fonts, sizes and styles, with a sample.
#pragma once

#include <QDialog>

#include "tags/candidate_list.hpp"
#include "tags/font_choice.hpp"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QScrollArea;
class QVBoxLayout;

namespace kestri {

class FontFrm : public QDialog {
  Q_OBJECT
 public:
  explicit FontFrm(const ScreenFonts& screenFonts, QWidget* parent = nullptr);

  // The rows that come closest to the wanted font.
  void LoadValues(const FontChoice& wanted);
  FontChoice Shown() const;  // as the fields stand
  void OfferStyles(bool offered);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void BuildFonts(const ScreenFonts& screenFonts);
  void BuildSizes();
  void BuildStyles();
  void BuildSample();
  void BuildLayout();
  QVBoxLayout* FieldsBesideTheList();
  QScrollArea* SampleInItsPlace();
  void FollowChoice();

  std::vector<std::u16string> names_;  // the rows of FontView
  QListWidget* fontView_ = nullptr;
  QComboBox* fontSizeCombo_ = nullptr;
  QCheckBox* bold_ = nullptr;    // Check1, index 0
  QCheckBox* italic_ = nullptr;  // Check1, index 1
  QLabel* flb_ = nullptr;        // the sample
};

}  // namespace kestri
