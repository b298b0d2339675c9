// The colour picker: three sliders, and the code and look of the colour they make.
#pragma once

#include <QDialog>
#include <array>
#include <string>
#include <string_view>

#include "tags/named_colors.hpp"

class QGridLayout;
class QLabel;
class QLineEdit;
class QSlider;
class QSpinBox;

namespace kestri {

class ColorPalette;

class NSColor : public QDialog {
  Q_OBJECT
 public:
  explicit NSColor(QWidget* parent = nullptr);

  // Clears the answer and shows the current colour; what is no colour code shows as black.
  void Prepare(std::u16string_view title, std::u16string_view current);
  const std::u16string& Answer() const { return answer_; }  // "#RRGGBB", empty until OK
  void accept() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  // Red, green and blue have the indices 0 to 2.
  static constexpr std::size_t kParts = 3;

  void BuildPart(std::size_t index, QGridLayout& grid);
  void BuildCode();
  void BuildLayout(QGridLayout& parts);
  void SetParts(int red, int green, int blue);
  void FollowSlider(std::size_t index);
  void TakeNamed(const NamedColor& color);
  void ShowColor();

  std::array<QSlider*, kParts> hScroll_{};
  std::array<QSpinBox*, kParts> upDoun_{};
  std::array<QLabel*, kParts> label_{};
  QLineEdit* sLabel_ = nullptr;
  ColorPalette* palette_ = nullptr;
  std::u16string answer_;
};

}  // namespace kestri
