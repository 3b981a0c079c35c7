#include "db/Imlec.h"

#include "db/Baglanti.h"
#include "db/Komut.h"

namespace db {

struct Imlec::Durum {
  Durum(sqlite3* db, const QString& sql, const QVariantList& deger) : s(db, sql, deger) {}
  ic::Sorgusu s;
};

Imlec::Imlec(Baglanti& b, const QString& sql, const QVariantList& deger) {
  if (!b.Acik()) throw Hata(QStringLiteral("Veri tabanı açık değil"), Hata::kBaglantiYok);
  d_ = std::make_unique<Durum>(b.ham(), sql, deger);
  sqlite3_stmt* st = d_->s.k().st();
  const int n = sqlite3_column_count(st);
  alanlar_.reserve(n);
  for (int i = 0; i < n; ++i) alanlar_ << QString::fromUtf8(sqlite3_column_name(st, i));
}

Imlec::~Imlec() = default;

bool Imlec::Ilerle() {
  if (bitti_) return false;
  satir_ = false;
  try {
    satir_ = d_->s.k().Adim();
  } catch (...) {
    // A failed step leaves the statement unusable: no row is read from it.
    bitti_ = true;
    throw;
  }
  bitti_ = !satir_;
  return satir_;
}

void Imlec::Yeniden(const QVariantList& deger) {
  ic::Komut& k = d_->s.k();
  sqlite3_reset(k.st());
  // Until every value is bound, no row is read.
  satir_ = false;
  bitti_ = true;
  if (k.ParametreSayisi() != deger.size())
    throw ic::ParametreHatasi(k.ParametreSayisi(), deger.size());
  k.Bagla(deger, 0);
  bitti_ = false;
}

int Imlec::AlanNo(const QString& ad) const {
  for (int i = 0; i < alanlar_.size(); ++i)
    if (alanlar_[i].compare(ad, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

void Imlec::SatirOlmali(int alan) const {
  if (!satir_) throw Hata(QStringLiteral("Geçerli kayıt yok (EOF veya BOF)"));
  if (alan < 0 || alan >= alanlar_.size()) throw Hata(QStringLiteral("Alan numarası geçersiz"));
}

QVariant Imlec::Fields(int alan) const {
  SatirOlmali(alan);
  return ic::SutunDegeri(d_->s.k().st(), alan);
}

QVariant Imlec::Fields(const QString& ad) const {
  const int i = AlanNo(ad);
  if (i < 0) throw Hata(QStringLiteral("Alan bulunamadı: %1").arg(ad));
  return Fields(i);
}

bool Imlec::Bos(int alan) const {
  SatirOlmali(alan);
  return sqlite3_column_type(d_->s.k().st(), alan) == SQLITE_NULL;
}

QByteArrayView Imlec::Utf8(int alan) const {
  SatirOlmali(alan);
  sqlite3_stmt* st = d_->s.k().st();
  const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st, alan));
  return p ? QByteArrayView(p, sqlite3_column_bytes(st, alan)) : QByteArrayView();
}

QString Imlec::Metin(int alan) const {
  SatirOlmali(alan);
  switch (sqlite3_column_type(d_->s.k().st(), alan)) {
    case SQLITE_NULL:
      return QString();
    case SQLITE_TEXT: {
      const QByteArrayView v = Utf8(alan);
      return QString::fromUtf8(v.data(), v.size());
    }
    default:  // numbers in Qt's text form, as a Kayitlar gives them
      return Fields(alan).toString();
  }
}

}  // namespace db
