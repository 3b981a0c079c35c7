#pragma once
// Readable failure messages: Qt texts and values printed as text.

#include <QString>
#include <QVariant>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

inline void PrintTo(const QVariant& v, std::ostream* os) {
  if (!v.isValid())
    *os << "Null";
  else
    *os << v.typeName() << '(' << v.toString().toStdString() << ')';
}
