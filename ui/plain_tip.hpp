// A text as a tool tip: shown as it stands, also when it looks like markup.
#pragma once

#include <QString>
#include <QTextDocument>

namespace kestri {

inline QString PlainTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>");
}

}  // namespace kestri
