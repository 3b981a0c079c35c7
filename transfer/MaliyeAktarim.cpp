#include "transfer/MaliyeAktarim.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryFile>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>

#include "core/Genel.h"
#include "db/Imlec.h"
#include "transfer/MaliyeDosyasi.h"
#include "transfer/MaliyeSema.h"

namespace aktarim {

namespace {

// The columns of both SELECTs up to the type column: the customer's.
const char* const kSutunlar =
    " SELECT M.VergiKimlikNo, M.MusteriNo, M.Soyadi, M.Adi, M.BabaAdi, M.Adres, M.Ilce,"
    " M.PostaKod, M.Il_Ad, M.IlKod, M.TCKimlikNo, M.VekilDurum, M.VekilVergiKimlik,"
    " M.VekilSoyadi, M.VekilAdi, M.Uyruk, M.HukukiDurum";
// The contracts of the period, and the collected lines.
const char* const kSozlesmeler =
    " , 1 AS TIP, S.Doviz, S.Tarih, S.Tutar * ? AS Tutar, S.FaizTutar * ? AS FaizTutar,"
    " S.SozlesmeSeri, S.SozlesmeNo"
    " FROM Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo"
    " WHERE S.Tarih BETWEEN ? AND ? AND S.Tutar >= ?";
const char* const kOdenenler =
    " , 2, SD.Doviz, SD.Odenmesi, SD.Meblag * ?, 0, ' ', ' '"
    " FROM (Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo)"
    " INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID"
    " WHERE SD.Odenmesi BETWEEN ? AND ? AND SD.Meblag >= ?";

// Columns of AkisSorgusu.
enum Akis { aMusteriNo, aTIP, aDoviz, aTarih, aTutar, aFaizTutar, aSozlesmeSeri, aSozlesmeNo };

}  // namespace

// Contracts by their date, collected papers by their payment day; UNION
// merges equal rows of one customer, and the count goes after that. The
// order (customer, type, date) goes by position: a compound query knows its
// columns by the first SELECT's aliases only.
QString AnaSorgu() {
  return QLatin1String(kSutunlar) + QLatin1String(kSozlesmeler) + QStringLiteral(" UNION") +
         QLatin1String(kSutunlar) + QLatin1String(kOdenenler) +
         QStringLiteral(" ORDER BY 2, 18, 20");
}

// The customer's columns depend on the customer's number alone (the key of
// Musteri), so the UNION merges the same rows, and the order is the same:
// UNION orders by every column, the customer's ones tie within a customer,
// and what decides after the date is the currency, the amounts, the series
// and the number. Without the customer's columns and join the engine sorts
// and seeks far less; the file reads each customer once, and leaves out the
// rows of a customer that is missing, as the join does.
QString AkisSorgusu() {
  return QStringLiteral(
      " SELECT S.MusteriNo, 1 AS TIP, S.Doviz, S.Tarih, S.Tutar * ? AS Tutar,"
      " S.FaizTutar * ? AS FaizTutar, S.SozlesmeSeri, S.SozlesmeNo"
      " FROM Sozlesme S WHERE S.Tarih BETWEEN ? AND ? AND S.Tutar >= ?"
      " UNION"
      " SELECT S.MusteriNo, 2, SD.Doviz, SD.Odenmesi, SD.Meblag * ?, 0, ' ', ' '"
      " FROM Sozlesme S INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID"
      " WHERE SD.Odenmesi BETWEEN ? AND ? AND SD.Meblag >= ?"
      " ORDER BY 1, 2, 4, 3, 5, 6, 7, 8");
}

namespace {

QString Sql(const QDate& d) { return d.toString(QStringLiteral("yyyy-MM-dd")); }

double Toplam(db::Baglanti& b, const QString& sql, const QVariantList& deger) {
  const QVariant v = b.Deger(sql, deger);
  return db::NullMu(v) ? 0.0 : v.toDouble();
}

// Column positions of the main query, and of the customer's row (the first 17).
enum Sutun {
  cVergiKimlikNo,
  cMusteriNo,
  cSoyadi,
  cAdi,
  cBabaAdi,
  cAdres,
  cIlce,
  cPostaKod,
  cIl_Ad,
  cIlKod,
  cTCKimlikNo,
  cVekilDurum,
  cVekilVergiKimlik,
  cVekilSoyadi,
  cVekilAdi,
  cUyruk,
  cHukukiDurum,
};

QString Metin(const QVariant& v) { return db::NullMu(v) ? QString() : v.toString(); }

void Kaydet(QSaveFile& f, const QByteArray& icerik) {
  if (f.write(icerik) != icerik.size() || !f.commit())
    throw DosyaHatasi(f.fileName() + QStringLiteral(": ") + f.errorString());
}

QSaveFile* Ac(QSaveFile& f) {
  if (!f.open(QIODevice::WriteOnly))
    throw DosyaHatasi(f.fileName() + QStringLiteral(": ") + f.errorString());
  return &f;
}

// The schema check of the file in a thread of its own, while the rows are
// written: it takes the pieces as they come, a few at a time, so that nothing
// of the file is held. `bas` gives it the head once the head can be made.
class Denetim {
 public:
  Denetim(const Varyant& v, const QString& ad, std::function<QByteArray()> bas)
      : sonuc_(std::async(std::launch::async,
                          [this, v, ad, bas = std::move(bas)] { return Calis(v, ad, bas); })) {}
  ~Denetim() {
    Kapat();
    if (sonuc_.valid()) sonuc_.wait();
  }
  Denetim(const Denetim&) = delete;
  Denetim& operator=(const Denetim&) = delete;

  // The next piece; waits while the check is far behind.
  void Ver(QByteArray parca) {
    std::unique_lock k(m_);
    yer_.wait(k, [this] { return kuyruk_.size() < kEnFazla || birak_; });
    if (birak_) return;
    kuyruk_.push_back(std::move(parca));
    parca_.notify_one();
  }
  // No more pieces.
  void Kapat() {
    std::lock_guard k(m_);
    bitti_ = true;
    parca_.notify_one();
  }
  // The first fault, empty when the whole was valid.
  QString Sonuc() {
    Kapat();
    return sonuc_.get();
  }

 private:
  static constexpr std::size_t kEnFazla = 32;

  QString Calis(const Varyant& v, const QString& ad, const std::function<QByteArray()>& bas) {
    QByteArray ilk;
    try {
      ilk = bas();
    } catch (...) {
      // The run fails with the same fault; the rows need no waiting for.
      std::lock_guard k(m_);
      birak_ = true;
      kuyruk_.clear();
      yer_.notify_all();
      return QString();
    }
    SemaAkisi sema(v, ad);
    sema.Ekle(ilk);
    for (;;) {
      QByteArray parca;
      {
        std::unique_lock k(m_);
        parca_.wait(k, [this] { return !kuyruk_.empty() || bitti_; });
        if (kuyruk_.empty()) break;
        parca = std::move(kuyruk_.front());
        kuyruk_.pop_front();
        yer_.notify_one();
      }
      sema.Ekle(parca);
    }
    return sema.Bitir();
  }

  std::mutex m_;
  std::condition_variable parca_, yer_;
  std::deque<QByteArray> kuyruk_;
  bool bitti_ = false, birak_ = false;
  std::future<QString> sonuc_;  // last: the thread starts once the rest is there
};

// The scratch file of the rows with the check beside it: every piece goes to
// both.
class Catal : public QIODevice {
 public:
  Catal(QIODevice& dosya, Denetim& denetim) : dosya_(dosya), denetim_(denetim) {
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char* p, qint64 n) override {
    const qint64 yazilan = dosya_.write(p, n);
    if (yazilan == n) denetim_.Ver(QByteArray(p, n));
    return yazilan;
  }

 private:
  QIODevice& dosya_;
  Denetim& denetim_;
};

class Aktarim {
 public:
  Aktarim(db::Baglanti& b, const Istek& i, const Geri& g)
      : b_(b), i_(i), g_(g), v_(VaryantSec(i.son.year())) {}

  Sonuc Calistir() {
    QDir().mkpath(i_.klasor);
    const QDir klasor(i_.klasor);
    const QString dosya = klasor.filePath(QString::fromLatin1(kDosyaAdi));
    QSaveFile f(dosya);
    Ac(f);
    const QVariant bas = Sql(i_.bas), son = Sql(i_.son);
    // The totals are read beside the rows, on a connection of their own
    // where there can be one; their failure comes out at get().
    std::shared_future<void> toplamlar;
    if (AyriOkunur(b_))
      toplamlar = std::async(std::launch::async, [this, bas, son] {
                    db::Baglanti ayri;
                    ayri.Ac(b_.Yol(), db::Baglanti::Kip::SadeceOku);
                    Toplamlar(ayri, bas, son);
                  }).share();
    else
      Toplamlar(b_, bas, son);
    const aktarim::Ofis ofis = Ofis();  // its faults stand first in the list

    // The head counts the rows, and they are counted only once the last is
    // written: they go to a scratch file beside the transfer file first, one
    // at a time, and follow the head there afterwards. The schema check reads
    // them as they are written, behind a head that counts 0 rows: the count
    // is the one byte that differs from the file, and any count is a valid
    // one, so the check says of the file what it says of what it read.
    QTemporaryFile govde(klasor.filePath(QStringLiteral("Velmora.XXXXXX")));
    if (!govde.open())
      throw DosyaHatasi(govde.fileName() + QStringLiteral(": ") + govde.errorString());
    Denetim denetim(v_, dosya, [this, &ofis, toplamlar] {
      if (toplamlar.valid()) toplamlar.get();
      return Basi(ofis, 0);
    });
    {
      Catal catal(govde, denetim);
      MaliyeYazici y(catal, v_);
      Satirlar(y);
      if (s_.yapilan > 0) y.KayitlarSon();
      y.Son();
      if (!y.Tamam())
        throw DosyaHatasi(govde.fileName() + QStringLiteral(": ") + govde.errorString());
    }
    denetim.Kapat();
    s_.kayitToplam = s_.yapilan;
    if (g_.yazildi) g_.yazildi(s_.yapilan);
    if (toplamlar.valid()) toplamlar.get();

    const QByteArray basi = Basi(ofis, s_.kayitToplam);
    if (f.write(basi) != basi.size())
      throw DosyaHatasi(dosya + QStringLiteral(": ") + f.errorString());
    Ekle(f, govde);
    s_.ozet = QStringLiteral("Ödünç Tutar : ") + Genel::SayiYaz(s_.odverToplam, v_.basamak) +
              QStringLiteral("\r\nTahsil Tutar:  ") + Genel::SayiYaz(s_.odtahToplam, v_.basamak);
    if (s_.yapilan > 0)
      s_.ozet += QStringLiteral("\r\n Aktarılan Kayıt: ") + Genel::SayiYaz(s_.yapilan, 0);
    HataListesi();
    if (!f.commit()) throw DosyaHatasi(dosya + QStringLiteral(": ") + f.errorString());
    s_.dosya = dosya;
    s_.semaHatasi = denetim.Sonuc();
    return std::move(s_);
  }

 private:
  // The lines of the file down to </protokol>.
  QByteArray Basi(const aktarim::Ofis& ofis, int kayitSayisi) const {
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    {
      MaliyeYazici y(b, v_);
      y.Bas(ofis, BilgiDonem(), i_.bugun.toString(QStringLiteral("yyyyMMdd")), kayitSayisi,
            s_.odverToplam, s_.odtahToplam);
    }
    return b.data();
  }

 private:
  // The rows written so far follow the head.
  static void Ekle(QSaveFile& f, QTemporaryFile& govde) {
    QByteArray parca(1 << 16, Qt::Uninitialized);
    if (!govde.seek(0))
      throw DosyaHatasi(govde.fileName() + QStringLiteral(": ") + govde.errorString());
    for (;;) {
      const qint64 n = govde.read(parca.data(), parca.size());
      if (n < 0) throw DosyaHatasi(govde.fileName() + QStringLiteral(": ") + govde.errorString());
      if (n == 0) return;
      if (f.write(parca.constData(), n) != n)
        throw DosyaHatasi(f.fileName() + QStringLiteral(": ") + f.errorString());
    }
  }

  // A second connection sees what the first has written: the file is one on
  // the disk and no transaction of the first is open.
  static bool AyriOkunur(const db::Baglanti& b) {
    return !b.IslemIcinde() && QFileInfo(b.Yol()).isFile();
  }

  void Toplamlar(db::Baglanti& b, const QVariant& bas, const QVariant& son) {
    const QVariantList d = {v_.carpan, bas, son, i_.limit};
    s_.odverToplam =
        Toplam(b,
               QStringLiteral("SELECT SUM(Tutar * ?) FROM Sozlesme WHERE Tarih BETWEEN ? AND ?"
                              " AND Tutar >= ? AND Doviz = 'TRL'"),
               d) +
        Toplam(b,
               QStringLiteral("SELECT SUM(Kur.Kur * S.Tutar * ?) FROM Sozlesme S INNER JOIN Kur"
                              " ON S.Tarih = Kur.Tarih AND S.Doviz = Kur.Doviz"
                              " WHERE S.Tarih BETWEEN ? AND ? AND S.Tutar >= ?"
                              " AND S.Doviz <> 'TRL'"),
               d);
    // By due date and without a join: the figures of earlier filings were
    // made so, though the rows go by the day of payment.
    s_.odtahToplam = Toplam(b,
                            QStringLiteral("SELECT SUM(Meblag * ?) FROM SozlesmeDetay WHERE "
                                           "Vadesi BETWEEN ? AND ? AND Meblag >= ?"),
                            d);
  }

  QString BilgiDonem() const {
    return i_.bas.toString(QStringLiteral("yyyyMM")) + QLatin1Char('-') +
           i_.son.toString(QStringLiteral("yyyyMM"));
  }

  // A province code in two digits; a missing one is "00" and a fault.
  QString IlKodu(const QVariant& v, const QString& kim) {
    if (db::NullMu(v)) {
      s_.hatalar << kim + QStringLiteral(" İl kodu eksik.");
      return QStringLiteral("00");
    }
    return Genel::IkiHane(v.toInt());
  }

  aktarim::Ofis Ofis() {
    aktarim::Ofis o;
    db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT * FROM Firma"));
    if (rs.Eof()) {
      s_.hatalar << QStringLiteral("Firma bilgilerinin İl kodu eksik.");
      o.ilKodu = QStringLiteral("00");
      return o;
    }
    o.vkn = rs.Metin(QStringLiteral("VergiKimlikNo"));
    o.unvan =
        (rs.Metin(QStringLiteral("Soyadi")) + QLatin1Char(' ') + rs.Metin(QStringLiteral("Adi")) +
         QLatin1Char(' ') + rs.Metin(QStringLiteral("BabaAdi")))
            .trimmed();
    o.adres = rs.Metin(QStringLiteral("Adres"));
    o.ilce = rs.Metin(QStringLiteral("Ilce"));
    o.pk = rs.Metin(QStringLiteral("PostaKod"));
    const QVariant il = rs.Fields(QStringLiteral("IlKod"));
    if (!db::NullMu(il))
      o.ilAdi =
          Metin(b_.Deger(QStringLiteral("SELECT Il FROM Il_Trafik_Kodu WHERE IlKod = ?"), {il}));
    o.ilKodu = IlKodu(il, QStringLiteral("Firma bilgilerinin"));
    return o;
  }

  // The tax number check of a customer or of the proxy.
  QString Vkn(const QString& metin, const QString& kim, bool vekil) {
    const Doldurma d = SifirDoldur(metin, 10);
    const QString v = vekil ? QStringLiteral(" Müşterisinin Vekil Vergi numara")
                            : QStringLiteral(" Müşterisinin Vergi numara");
    if (d.kisa) s_.hatalar << kim + v + QStringLiteral("sının uzunluğu hatalı.");
    if (d.sifir) s_.hatalar << kim + v + QStringLiteral("sı Hatalı");
    return d.metin;
  }

  Kisi KisiOku(const db::Imlec& rs) {
    const auto m = [&rs](int c) { return rs.Metin(c); };
    const QString kim =
        m(cMusteriNo) + QStringLiteral(" Numaralı ") + m(cSoyadi) + QLatin1Char(' ') + m(cAdi);
    Kisi k;
    const QVariant uyruk = rs.Fields(cUyruk);
    k.uyrukIkinci = db::NullMu(uyruk) || uyruk.toInt() == 2;
    const QVariant hukuki = rs.Fields(cHukukiDurum);
    k.hukukiYapi = Genel::IkiHane(db::NullMu(hukuki) ? 0 : hukuki.toInt());
    k.vkn = Vkn(m(cVergiKimlikNo), kim, false);
    k.soyad = m(cSoyadi);
    k.ad = m(cAdi);
    k.babaAdi = m(cBabaAdi);
    k.adres = m(cAdres);
    k.ilce = m(cIlce);
    k.pk = m(cPostaKod);
    k.ilAdi = m(cIl_Ad);
    k.ilKodu = IlKodu(rs.Fields(cIlKod), kim + QStringLiteral(" Müşterisinin"));
    k.tckn = SifirDoldur(m(cTCKimlikNo), 11).metin;
    const QVariant vekil = rs.Fields(cVekilDurum);
    k.vekilDurum = db::NullMu(vekil) ? 0 : vekil.toInt();
    if (k.vekilDurum > 0) {
      k.vekilVkn = Vkn(m(cVekilVergiKimlik), kim, true);
      k.vekilSoyad = m(cVekilSoyadi);
      k.vekilAd = m(cVekilAdi);
    }
    return k;
  }

  QString Tutar(const QVariant& v) const {
    return db::NullMu(v) ? QString() : TutarYaz(v.toDouble(), v_.basamak);
  }
  QString Carp(const QVariant& v, const QVariant& kur) const {
    if (db::NullMu(v) || db::NullMu(kur)) return QString();
    return TutarYaz(v.toDouble() * kur.toDouble(), v_.basamak);
  }

  void KurUyar(const QString& metin) {
    s_.kurUyarilari << metin;
    if (g_.kurUyarisi) g_.kurUyarisi(metin);
  }

  void Odver(MaliyeYazici& y, const db::Imlec& rs) {
    const QString tarih = rs.Metin(aTarih);
    const QString sozTar = GunYaz(tarih);
    const QString sozNo = SozNo(rs.Metin(aSozlesmeSeri), rs.Metin(aSozlesmeNo));
    const QVariant doviz = rs.Fields(aDoviz);
    const QVariant tutar = rs.Fields(aTutar), faiz = rs.Fields(aFaizTutar);
    // A contract without a currency goes down the lira path.
    if (db::NullMu(doviz) || doviz.toString() == QLatin1String("TRL")) {
      y.Odver(sozTar, sozNo, true, Tutar(tutar), QStringLiteral("0"), Tutar(faiz),
              QStringLiteral("0"));
      return;
    }
    db::Kayitlar kur =
        b_.Sorgu(QStringLiteral("SELECT Kur, CaprazKur FROM Kur WHERE Tarih = ? AND Doviz = ?"),
                 {tarih, doviz});
    if (kur.Eof() || db::NullMu(kur.Fields(0))) {
      KurUyar(QString::fromUtf8(kKurUyarisi));
      y.Odver(sozTar, sozNo, false, {}, {}, {}, {});
      return;
    }
    if (db::NullMu(kur.Fields(1)))
      KurUyar(QString::fromUtf8(kKurUyarisi) + QStringLiteral(" (Çapraz kur yok: ") +
              Genel::TarihEkran(tarih) + QLatin1Char(' ') + doviz.toString() + QLatin1Char(')'));
    y.Odver(sozTar, sozNo, true, Carp(tutar, kur.Fields(0)), Carp(tutar, kur.Fields(1)),
            Carp(faiz, kur.Fields(0)), Carp(faiz, kur.Fields(1)));
  }

  void Satirlar(MaliyeYazici& y) {
    db::Imlec rs(b_, AkisSorgusu(), AnaSorguDegerleri(i_));
    db::Imlec musteri(
        b_, QLatin1String(kSutunlar) + QStringLiteral(" FROM Musteri M WHERE M.MusteriNo = ?"),
        {db::Null()});
    QVariant onceki;
    bool musteriVar = false;
    while (rs.Ilerle()) {
      const QVariant no = rs.Fields(aMusteriNo);
      if (db::NullMu(no)) continue;
      if (db::NullMu(onceki) || no != onceki) {
        onceki = no;
        musteri.Yeniden({no});
        musteriVar = musteri.Ilerle();
        if (!musteriVar) continue;
        if (s_.yapilan == 0) y.KayitlarBas();
        y.Musteri(KisiOku(musteri));
      } else if (!musteriVar) {
        continue;
      }
      if (rs.Fields(aTIP).toInt() == 1)
        Odver(y, rs);
      else
        y.Odtah(GunYaz(rs.Metin(aTarih)), Tutar(rs.Fields(aTutar)));
      ++s_.yapilan;
      if (g_.ilerleme) g_.ilerleme(s_.yapilan);
    }
  }

  void HataListesi() {
    if (s_.hatalar.isEmpty()) return;
    // One print line: every entry with its line end, and the line's own.
    QString metin;
    for (const QString& h : s_.hatalar) metin += h + QStringLiteral("\r\n");
    QSaveFile f(QDir(i_.klasor).filePath(QString::fromLatin1(kHataDosyasi)));
    Ac(f);
    Kaydet(f, (metin + QStringLiteral("\r\n")).toUtf8());
  }

  db::Baglanti& b_;
  const Istek& i_;
  const Geri& g_;
  Varyant v_;
  Sonuc s_;
};

}  // namespace

QDate DonemBasi(int ay, int yil) { return QDate(yil, ay, 1); }

QDate DonemSonu(int ay, int yil) {
  switch (ay) {
    case 2:
      return QDate(yil, 2, 28);
    case 4:
    case 6:
    case 9:
    case 11:
      return QDate(yil, ay, 30);
    default:
      return QDate(yil, ay, 31);
  }
}

double LimitKurali(double limit) {
  if (limit > 250000) return Genel::YuvarlaBankaci(limit / 1000000.0, 0);
  return Genel::YuvarlaYarimYukari(limit, 0);
}

QString CiktiDizini() {
  QString d = qEnvironmentVariable("VELMORA_CIKTI");
  if (d.isEmpty()) {
    QProcess p;
    p.start(QStringLiteral("xdg-user-dir"), {QStringLiteral("DOCUMENTS")});
    if (p.waitForFinished(3000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0)
      d = QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed();
  }
  if (d.isEmpty()) {
    const QString belgeler = QDir::home().filePath(QStringLiteral("Belgeler"));
    d = QDir(belgeler).exists() ? belgeler : QDir::homePath();
  }
  QDir().mkpath(d);
  return d;
}

Sonuc Hazirla(db::Baglanti& b, const Istek& istek, const Geri& geri) {
  return Aktarim(b, istek, geri).Calistir();
}

namespace {

// One line of the control list: every value as text followed by a tab, then
// CR LF. `deger(c)` gives the value of column c.
template <class Deger>
void KontrolSatiri(QByteArray& out, int sutunlar, int tarih, Deger deger) {
  const QChar tab = QLatin1Char('\t');
  QString satir;
  for (int c = 0; c < sutunlar; ++c) {
    const QVariant v = deger(c);
    if (db::NullMu(v))
      ;
    else if (c == tarih)
      satir += Genel::TarihEkran(v);
    else if (v.typeId() == QMetaType::Double)
      satir +=
          QString::number(v.toDouble(), 'g', 15).replace(QLatin1Char('.'), Genel::Bolge().ondalik);
    else
      satir += v.toString();
    satir += tab;
  }
  out += satir.toUtf8() + "\r\n";
}

void BasliklarSatiri(QByteArray& out, const QStringList& alanlar) {
  QString satir;
  for (const QString& ad : alanlar) satir += ad + QLatin1Char('\t');
  out += satir.toUtf8() + "\r\n";
}

QSaveFile* KontrolDosyasi(QSaveFile& f, const QString& klasor) {
  QDir().mkpath(klasor);
  f.setFileName(QDir(klasor).filePath(QString::fromLatin1(kKontrolDosyasi)));
  return Ac(f);
}

}  // namespace

QVariantList AnaSorguDegerleri(const Istek& i) {
  const double carpan = VaryantSec(i.son.year()).carpan;
  const QVariant bas = Sql(i.bas), son = Sql(i.son);
  return {carpan, carpan, bas, son, i.limit, carpan, bas, son, i.limit};
}

db::Kayitlar KontrolSatirlari(db::Baglanti& b, const Istek& i) {
  return b.Sorgu(AnaSorgu(), AnaSorguDegerleri(i));
}

QByteArray KontrolListesi(const db::Kayitlar& rs) {
  QByteArray out;
  if (rs.RecordCount() == 0) return out;
  BasliklarSatiri(out, rs.Alanlar());
  const int tarih = rs.AlanNo(QStringLiteral("Tarih"));
  for (int r = 0; r < rs.RecordCount(); ++r)
    KontrolSatiri(out, rs.AlanSayisi(), tarih, [&](int c) { return rs.Deger(r, c); });
  return out;
}

QString KontrolListesiYaz(const db::Kayitlar& rs, const QString& klasor) {
  QSaveFile f;
  KontrolDosyasi(f, klasor);
  Kaydet(f, KontrolListesi(rs));
  return f.fileName();
}

QString KontrolListesiYaz(db::Baglanti& b, const Istek& i, const QString& klasor) {
  QSaveFile f;
  KontrolDosyasi(f, klasor);
  db::Imlec rs(b, AnaSorgu(), AnaSorguDegerleri(i));
  const int tarih = rs.AlanNo(QStringLiteral("Tarih"));
  QByteArray parca;
  bool ilk = true;
  while (rs.Ilerle()) {
    if (ilk) BasliklarSatiri(parca, rs.Alanlar());
    ilk = false;
    KontrolSatiri(parca, rs.AlanSayisi(), tarih, [&](int c) { return rs.Fields(c); });
    if (parca.size() >= (1 << 16)) {
      if (f.write(parca) != parca.size())
        throw DosyaHatasi(f.fileName() + QStringLiteral(": ") + f.errorString());
      parca.clear();
    }
  }
  Kaydet(f, parca);
  return f.fileName();
}

}  // namespace aktarim
