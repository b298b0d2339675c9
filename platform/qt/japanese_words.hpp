// Words that the toolkit's own Japanese texts lack, or that a Japanese desktop words otherwise.
#pragma once

#include <QTranslator>

namespace kestri {

class JapaneseWords : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char* context, const char* source, const char* disambiguation,
                    int count) const override;
  bool isEmpty() const override { return false; }
};

}  // namespace kestri
