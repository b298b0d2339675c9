#include "platform/qt/recent_documents.hpp"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QMimeDatabase>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

namespace kestri {
namespace {

QString ListPath() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/recently-used.xbel");
}

QByteArray EmptyList() {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"\n"
         "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
         "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\">\n</xbel>\n";
}

QByteArray Bookmark(const QString& path) {
  const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
  const QString uri = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded).toHtmlEscaped();
  const QString type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
  const QString name = QCoreApplication::applicationName().toHtmlEscaped();
  return QStringLiteral(
             "  <bookmark href=\"%1\" added=\"%2\" modified=\"%2\" visited=\"%2\">\n    <info>\n"
             "      <metadata owner=\"http://freedesktop.org\">\n        <mime:mime-type type=\"%3\"/>\n"
             "        <bookmark:applications>\n"
             "          <bookmark:application name=\"%4\" exec=\"&apos;Kestri %u&apos;\" modified=\"%2\" "
             "count=\"1\"/>\n"
             "        </bookmark:applications>\n      </metadata>\n    </info>\n  </bookmark>\n")
      .arg(uri, now, type, name)
      .toUtf8();
}

void RemoveBookmarkOf(const QString& path, QByteArray& list) {
  const QByteArray uri = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded).toHtmlEscaped().toUtf8();
  const qsizetype begin = list.indexOf("<bookmark href=\"" + uri + '"');
  const QByteArray closing = "</bookmark>";
  const qsizetype end = begin < 0 ? -1 : list.indexOf(closing, begin);
  if (end >= 0) list.remove(begin, end + closing.size() - begin);
}

}  // namespace

void RegisterRecentDocument(const QString& path) {
  QFile file(ListPath());
  QByteArray list = EmptyList();
  if (file.exists()) {
    if (!file.open(QIODevice::ReadOnly)) return;
    list = file.readAll();
    file.close();
  }
  RemoveBookmarkOf(path, list);
  const qsizetype end = list.lastIndexOf("</xbel>");
  if (end < 0) return;
  list.insert(end, Bookmark(path));
  QSaveFile target(ListPath());
  if (target.open(QIODevice::WriteOnly) && target.write(list) == list.size()) target.commit();
}

}  // namespace kestri
