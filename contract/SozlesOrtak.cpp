#include "contract/SozlesOrtak.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <algorithm>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Izgara.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "master/MusteriListesi.h"

namespace contract {

// --- building the screens

QPushButton* Dugme(const QString& ad, const QString& yazi) {
  auto* d = new QPushButton(yazi);
  d->setObjectName(ad);
  d->setAutoDefault(false);
  d->setMinimumWidth(d->sizeHint().width() + 12);
  return d;
}

void YeriniKoru(QWidget* w) {
  QSizePolicy p = w->sizePolicy();
  p.setRetainSizeWhenHidden(true);
  w->setSizePolicy(p);
}

QString SayiMetni(const QVariant& v) {
  if (db::NullMu(v)) return QString();
  if (v.typeId() == QMetaType::Double) {
    QString s = QString::number(v.toDouble(), 'g', 15);
    s.replace(QLatin1Char('.'), Genel::Bolge().ondalik);
    return s;
  }
  return v.toString();
}

bool Ayriliyor(QWidget* w) { return w->isEnabled() && w->isVisible(); }

QPalette ZeminBoya(QWidget* w, const QColor& renk) {
  QPalette zemin = w->palette();
  zemin.setColor(QPalette::Window, renk);
  w->setPalette(zemin);
  w->setAutoFillBackground(true);
  return zemin;
}

int HarfGenisligi(const QWidget* w) {
  return w->fontMetrics().horizontalAdvance(QStringLiteral("0123456789")) / 10;
}

void Genislik(QWidget* w, int harf, int n) { w->setFixedWidth(harf * n + 16); }

QFont FaizGunEtiketiKur(QLabel* lblFaizGun, int harf) {
  lblFaizGun->setObjectName(QStringLiteral("lblFaizGun"));
  lblFaizGun->setMinimumWidth(harf * 14);
  QFont kalin = lblFaizGun->font();
  kalin.setBold(true);
  lblFaizGun->setFont(kalin);
  return kalin;
}

// --- the customer

QComboBox* MusteriKutusu(master::MusteriListesi* liste, int harf) {
  auto* cmbAd = new QComboBox;
  cmbAd->setObjectName(QStringLiteral("cmbAd"));
  ekran::AnahtarListesi(cmbAd);
  cmbAd->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cmbAd->setModel(liste);
  cmbAd->setMaxVisibleItems(20);
  if (auto* v = qobject_cast<QListView*>(cmbAd->view())) v->setUniformItemSizes(true);
  cmbAd->setMinimumWidth(harf * 36);
  return cmbAd;
}

QLineEdit* GizliKutu(QWidget* ekran, const QString& ad) {
  auto* kutu = new QLineEdit(ekran);
  kutu->setObjectName(ad);
  kutu->hide();
  return kutu;
}

bool MusteriSecilmis(const QLineEdit* txtMusteriNo, QComboBox* cmbAd, bool musteriBazinda) {
  if (!txtMusteriNo->text().isEmpty() || !musteriBazinda) return true;
  mesaj::Kritik(QStringLiteral("Önce Bir Müşteri Seçmelisiniz"), QStringLiteral("Giriş Hatası"));
  cmbAd->setFocus();
  return false;
}

void MusteriDoldur(db::Kayitlar& rsMusteri, master::MusteriListesi* liste, QComboBox* cmbAd,
                   int sinir) {
  rsMusteri = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT MusteriNo, Soyadi, Adi, Bulunacak FROM MusteriQry"));
  const int adet = std::min(rsMusteri.RecordCount(), sinir);
  const int ad = rsMusteri.AlanNo(QStringLiteral("Bulunacak"));
  QVector<master::MusteriListesi::Oge> ogeler;
  ogeler.reserve(adet);
  for (int i = 0; i < adet; ++i) {
    const QVariant v = rsMusteri.Deger(i, ad);
    ogeler.push_back(
        {db::NullMu(v) ? QString() : v.toString(), rsMusteri.Deger(i, 0).toLongLong()});
  }
  liste->SiraliDoldur(std::move(ogeler));
  cmbAd->setCurrentIndex(-1);
  rsMusteri.MoveFirst();
}

bool MusteriBul(db::Kayitlar& rsMusteri, const master::MusteriListesi* liste, QComboBox* cmbAd,
                const QString& musteriNo) {
  rsMusteri.MoveFirst();
  bool sayi = false;
  const qint64 no = musteriNo.trimmed().toLongLong(&sayi);
  // rsMusteri stands in number order: halve it.
  int alt = 0, ust = rsMusteri.RecordCount() - 1, bulunan = -1;
  while (sayi && alt <= ust) {
    const int orta = alt + (ust - alt) / 2;
    const qint64 x = rsMusteri.Deger(orta, 0).toLongLong();
    if (x == no) {
      bulunan = orta;
      break;
    }
    if (x < no)
      alt = orta + 1;
    else
      ust = orta - 1;
  }
  if (bulunan < 0) {
    mesaj::Kritik(QStringLiteral("Aranan Kayıt Bulunamadı!"), QStringLiteral("Arama"));
    rsMusteri.MoveFirst();
    cmbAd->setFocus();
    return false;
  }
  rsMusteri.Move(bulunan);
  const int satir = liste->DegerSatiri(no);
  if (satir >= 0) {
    cmbAd->setCurrentIndex(satir);
  } else {  // beyond the customers the list takes
    cmbAd->setCurrentIndex(-1);
    cmbAd->setEditText(rsMusteri.Metin(QStringLiteral("Bulunacak")));
  }
  return true;
}

int SeciliMusteri(const QComboBox* cmbAd, const master::MusteriListesi* liste) {
  const QString yazi = cmbAd->currentText();
  const int i = cmbAd->currentIndex();
  if (i >= 0 && cmbAd->itemText(i) == yazi) return i;
  return yazi.isEmpty() ? -1 : liste->Bul(yazi);
}

bool MusteriSecimi(QComboBox* cmbAd, const master::MusteriListesi* liste, QLineEdit* txtMusteriNo,
                   bool bosGecer) {
  const int i = SeciliMusteri(cmbAd, liste);
  if (i < 0 && bosGecer && cmbAd->currentText().trimmed().isEmpty()) return true;
  if (i < 0) {
    mesaj::Kritik(QStringLiteral("Lütfen Listeden Bir Müşteri Seçiniz"),
                  QStringLiteral("Müşteri Seçimi"));
    return false;
  }
  if (cmbAd->currentIndex() != i) cmbAd->setCurrentIndex(i);
  txtMusteriNo->setText(QString::number(liste->At(i).deger));
  return true;
}

// --- figures

void HesaplaKilitUygula(bool Hesapla, QLineEdit* txtTutar, QLineEdit* txtFaizTutar,
                        QLineEdit* txtOdenecek) {
  const faiz::HesaplaKilidi k = faiz::HesaplaKilit(Hesapla);
  // A locked box is out of the tab order and takes no click; an open one
  // goes into the tab order or out of it as the lock says.
  const auto uygula = [](QLineEdit* kutu, const faiz::AlanKilidi& kilit) {
    ekran::SaltOkunur(kutu, kilit.Kilitli);
    if (!kilit.Kilitli && kilit.Sekmede)
      kutu->setFocusPolicy(*kilit.Sekmede ? Qt::StrongFocus : Qt::ClickFocus);
  };
  uygula(txtTutar, k.txtTutar);
  uygula(txtFaizTutar, k.txtFaizTutar);
  uygula(txtOdenecek, k.txtOdenecek);
}

bool TutarKontrol(QLineEdit* kutu, bool Meblag) {
  const std::optional<QString> yeni = faiz::TutarAlani(kutu->text(), Meblag);
  if (!yeni) {
    mesaj::Kritik(QStringView(faiz::kMiktarMesaji).toString(),
                  QStringView(faiz::kMiktarBaslik).toString());
    return false;
  }
  if (*yeni != kutu->text()) kutu->setText(*yeni);
  return true;
}

void OranKontrol(QLineEdit* kutu) {
  const QString yeni = faiz::OranAlani(kutu->text());
  if (yeni != kutu->text()) kutu->setText(yeni);
}

std::vector<faiz::Satir> FaizSatirlari(const db::Kayitlar& rsDetay) {
  const int vade = rsDetay.AlanNo(QStringLiteral("Vadesi"));
  const int gun = rsDetay.AlanNo(QStringLiteral("Gun"));
  const int meblag = rsDetay.AlanNo(QStringLiteral("Meblag"));
  const int cekNo = rsDetay.AlanNo(QStringLiteral("CekNo"));
  const int kesideci = rsDetay.AlanNo(QStringLiteral("Kesideci"));
  const auto metin = [&rsDetay](int satir, int alan) {
    const QVariant v = rsDetay.Deger(satir, alan);
    return db::NullMu(v) ? QString() : v.toString();
  };
  std::vector<faiz::Satir> satirlar(std::size_t(rsDetay.RecordCount()));
  for (int i = 0; i < rsDetay.RecordCount(); ++i) {
    faiz::Satir& s = satirlar[std::size_t(i)];
    s.Vadesi = QDate::fromString(metin(i, vade).left(10), Qt::ISODate);
    s.Gun = faiz::GunOku(metin(i, gun));
    s.Meblag = rsDetay.Deger(i, meblag).toDouble();
    if (i == 0) {  // the marker test reads the first line only
      s.CekNo = metin(i, cekNo);
      s.Kesideci = metin(i, kesideci);
    }
  }
  return satirlar;
}

faiz::Girdi FaizGirdisi(const QLineEdit* txtTarih, const QLineEdit* txtFaizOran, qint64 ilaveGun,
                        bool Hesapla) {
  faiz::Girdi girdi;
  girdi.Tarih = Genel::TarihOku(txtTarih->text());
  girdi.FaizOran = faiz::OranDegeri(txtFaizOran->text());
  girdi.ilaveGun = ilaveGun;
  girdi.Hesapla = Hesapla;
  girdi.HaftaSonu = Genel::HaftaSonu;
  girdi.OrtalamaGun = Genel::OrtalamaGun;
  return girdi;
}

void SonucuYaz(const faiz::Sonuc& sonuc, const TutarAlanlari& a, qint64& DetaySayisi,
               QString& GunYazisi, double& Odenecek) {
  DetaySayisi = sonuc.DetaySayisi;
  if (sonuc.GunYazisi) GunYazisi = *sonuc.GunYazisi;
  if (sonuc.OrtGun) Genel::OrtGun = *sonuc.OrtGun;
  if (sonuc.txtTutar) a.txtTutar->setText(*sonuc.txtTutar);
  if (sonuc.txtFaizTutar) a.txtFaizTutar->setText(*sonuc.txtFaizTutar);
  if (sonuc.txtOdenecek) a.txtOdenecek->setText(*sonuc.txtOdenecek);
  if (sonuc.Odenecek) Odenecek = *sonuc.Odenecek;
  if (sonuc.lblFaizGun) a.lblFaizGun->setText(*sonuc.lblFaizGun);
}

qint64 KayitGoster(const db::Kayitlar& kayit, QLineEdit* txtTarih, QLineEdit* txtTutar,
                   QLineEdit* txtFaizOran, QLineEdit* txtValor) {
  txtTarih->setText(Genel::TarihEkran(kayit.Fields(QStringLiteral("Tarih"))));
  txtTutar->setText(faiz::ParaYazisi(kayit.Fields(QStringLiteral("Tutar")).toDouble()));
  txtFaizOran->setText(SayiMetni(kayit.Fields(QStringLiteral("FaizOran"))));
  const QVariant ilave = kayit.Fields(QStringLiteral("ilaveGun"));
  const qint64 ilaveGun = db::NullMu(ilave) ? 0 : ilave.toLongLong();
  txtValor->setText(faiz::ValorYazisi(ilaveGun));
  return ilaveGun;
}

void FaizTutariGoster(const db::Kayitlar& kayit, const TutarAlanlari& a, double& Odenecek) {
  const QVariant faizTutar = kayit.Fields(QStringLiteral("FaizTutar"));
  if (db::NullMu(faizTutar)) return;
  a.txtFaizTutar->setText(faiz::ParaYazisi(faizTutar.toDouble()));
  Odenecek = kayit.Fields(QStringLiteral("Tutar")).toDouble() - faizTutar.toDouble();
  a.txtOdenecek->setText(faiz::ParaYazisi(Odenecek));
  a.lblFaizGun->clear();
}

// --- the lines

DetayGirisi DetayGirisiKur(int harf) {
  DetayGirisi g;
  g.txtVade = ekran::Kutu(QStringLiteral("txtVade"));
  g.txtGun = ekran::Kutu(QStringLiteral("txtGun"), 3);
  g.txtMeblag = ekran::Kutu(QStringLiteral("txtMeblag"));
  g.txtMeblag->setAlignment(Qt::AlignRight);
  g.cmdDetayEkle = Dugme(QStringLiteral("cmdDetayEkle"), QStringLiteral("Ekle"));
  g.cmdVazgec = Dugme(QStringLiteral("cmdVazgec"), QStringLiteral("Vazgeç"));
  g.cmdDetaySil = Dugme(QStringLiteral("cmdDetaySil"), QStringLiteral("Sil"));
  g.cmdCekDuzelt = Dugme(QStringLiteral("cmdCekDuzelt"), QStringLiteral("DÜZELT"));
  g.cmdDetaySil->hide();
  YeriniKoru(g.cmdDetaySil);
  Genislik(g.txtVade, harf, 10);
  Genislik(g.txtGun, harf, 4);
  Genislik(g.txtMeblag, harf, 15);
  return g;
}

void DetayGirisiDavranisi(const DetayGirisi& g) {
  QLineEdit* txtVade = g.txtVade;
  QLineEdit* txtGun = g.txtGun;
  QLineEdit* txtMeblag = g.txtMeblag;
  ekran::AyrilirkenKontrol(
      txtVade, [txtVade] { return !Ayriliyor(txtVade) || ekran::TarihDuzelt(txtVade); });
  ekran::TarihKutusuKur(txtVade);
  ekran::AyrilirkenKontrol(
      txtMeblag, [txtMeblag] { return !Ayriliyor(txtMeblag) || TutarKontrol(txtMeblag, true); });
  ekran::AyrilirkenKontrol(txtGun, [txtGun] {
    if (Ayriliyor(txtGun)) txtGun->setText(faiz::GunAlani(txtGun->text()));
    return true;
  });
}

ekran::Izgara* DetayIzgarasi(int satir) {
  auto* izgara = new ekran::Izgara;
  izgara->setObjectName(QStringLiteral("dGridDetay"));
  izgara->setMinimumHeight(izgara->verticalHeader()->defaultSectionSize() * satir);
  DetayIzgarasiKur(izgara);
  return izgara;
}

db::Kayitlar DetayIzgarasiAc(const QString& tablo, bool meblagTL, const QString& txtTarih,
                             qint64 ilaveGun, qint32 SozlesmeID) {
  return Genel::Baglanti.Sorgu(DetayIzgaraSorgusu(tablo, meblagTL),
                               DetayIzgaraDegerleri(txtTarih, ilaveGun, SozlesmeID));
}

void IzgaraSonunda(db::Kayitlar& rsDetay, ekran::Izgara* izgara) {
  rsDetay.Move(rsDetay.RecordCount());
  izgara->selectionModel()->clear();
}

qint32 SatiriGiriseAl(const db::Kayitlar& rsDetay, const DetayGirisi& g) {
  g.txtVade->setText(Genel::TarihEkran(rsDetay.Fields(QStringLiteral("Vadesi"))));
  g.txtGun->setText(rsDetay.Metin(QStringLiteral("Gun")));
  const QVariant meblag = rsDetay.Fields(QStringLiteral("Meblag"));
  g.txtMeblag->setText(db::NullMu(meblag) ? QString() : MeblagYazisi(meblag.toDouble()));
  return rsDetay.Fields(QStringLiteral("GirisNo")).toInt();
}

void GirisDugmeleri(const DetayGirisi& g, bool alinmis) {
  g.cmdDetayEkle->setText(alinmis ? QStringLiteral("Kaydet") : QStringLiteral("Ekle"));
  g.cmdDetaySil->setVisible(alinmis);
}

QString MeblagYazisi(double deger) {
  QString s = faiz::ParaYazisi(deger);
  const QChar ondalik = Genel::Bolge().ondalik;
  const int sifir = s.startsWith(QLatin1Char('-')) ? 1 : 0;
  if (s.size() > sifir + 1 && s[sifir] == QLatin1Char('0') && s[sifir + 1] == ondalik)
    s.remove(sifir, 1);
  return s;
}

QString GunuIfadesi(const QString& tarih, const QString& ilaveGun, const QString& gun,
                    const QString& vadesi) {
  QString s = QStringLiteral("CASE WHEN %1 = 0 THEN GunFarki(%2, %3) + %4")
                  .arg(gun, tarih, vadesi, ilaveGun);
  if (Genel::HaftaSonu)
    s += QStringLiteral(" + CASE Weekday(%1) WHEN 1 THEN 1 WHEN 7 THEN 2 ELSE 0 END").arg(vadesi);
  return s + QStringLiteral(" ELSE %1 END").arg(gun);
}

QString DetayIzgaraSorgusu(const QString& tablo, bool meblagTL) {
  const QString p = QStringLiteral("?");
  return QStringLiteral(
             "SELECT GirisNo, SozlesmeNo, Tip, Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, "
             "Gun, Meblag, Doviz, Karsilik, Odenmesi, ") +
         GunuIfadesi(p, p, QStringLiteral("Gun"), QStringLiteral("Vadesi")) +
         QStringLiteral(" AS Gunu, SozlesmeSeri, ") +
         (meblagTL ? QStringLiteral("MeblagTL, ") : QString()) +
         QStringLiteral(
             "SozlesmeID, "
             "CASE WHEN Odenmesi < ? THEN 'Tahsil' WHEN Odenmesi IS NULL THEN 'Ksız' ELSE '' END "
             "AS Durum FROM ") +
         tablo + QStringLiteral(" WHERE SozlesmeID = ?");
}

QVariantList DetayIzgaraDegerleri(const QString& txtTarih, qint64 ilaveGun, qint32 SozlesmeID) {
  const QString simdi =
      QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
  return {Genel::TarihSql(txtTarih), ilaveGun, simdi, SozlesmeID};
}

void DetayIzgarasiKur(ekran::Izgara* izgara) {
  ekran::IzgaraModeli* m = izgara->Model();
  m->BelgeSutunlari(QStringLiteral("Gunu"));
  m->Baslik(QStringLiteral("Meblag"), QStringLiteral("Meblağ"));
  ekran::IzgaraModeli::Sutun& meblag = m->Ayar(QStringLiteral("Meblag"));
  meblag.hiza = Qt::AlignRight | Qt::AlignVCenter;
  meblag.yaz = [](const QVariant& v) {
    return db::NullMu(v) ? QString() : MeblagYazisi(v.toDouble());
  };
  m->Baslik(QStringLiteral("Durum"), QStringLiteral("Durum"));
}

void DetaySutunlari(ekran::Izgara* izgara, const db::Kayitlar& rsDetay,
                    std::span<const IzgaraSutunu> sutunlar) {
  QHeaderView* baslik = izgara->horizontalHeader();
  for (int i = 0; i < rsDetay.AlanSayisi(); ++i) izgara->setColumnHidden(i, true);
  const int harf = izgara->fontMetrics().horizontalAdvance(QStringLiteral("0123456789")) / 10;
  int yer = 0;
  for (const IzgaraSutunu& s : sutunlar) {
    const int alan = rsDetay.AlanNo(QString::fromLatin1(s.ad));
    if (alan < 0) continue;
    baslik->moveSection(baslik->visualIndex(alan), yer++);
    izgara->setColumnHidden(alan, !s.gorunur);
    if (s.harf == 0) {
      baslik->setSectionResizeMode(alan, QHeaderView::Stretch);
    } else {
      baslik->setSectionResizeMode(alan, QHeaderView::Interactive);
      baslik->resizeSection(alan, harf * s.harf + 12);
    }
  }
}

bool DetayLimitiKontrol(qint64 DetaySayisi, int DetayDurum) {
  // A line being changed doesn't count against the limit.
  if (DetaySayisi < Genel::DetayLimit || DetayDurum == 1) return true;
  mesaj::Uyari(QStringLiteral("Bir Sözleşmeyle İlişkilendirilecek Belge Sayısı En Fazla %1 dir. "
                              "Lütfen Yeni Bir Sözleşme Açınız")
                   .arg(Genel::DetayLimit));
  return false;
}

bool VadeGunMeblagKontrol(QLineEdit* txtVade, QLineEdit* txtGun, QLineEdit* txtMeblag) {
  const auto uyari = [](QWidget* alan, const QString& metin) {
    mesaj::Kritik(metin, QStringLiteral("Uyarı"));
    if (alan->isEnabled()) alan->setFocus();
    return false;
  };
  if (!Genel::TarihOku(txtVade->text()).isValid())
    return uyari(txtVade, QStringLiteral("Lütfen Vade Bilgisini Girin!!"));
  if (!Genel::SayiMi(txtGun->text()))
    return uyari(txtGun, QStringLiteral("Lütfen Gün bilgisine Gün Sayısını ya da 0 Girin!!"));
  if (!Genel::SayiMi(txtMeblag->text()))
    return uyari(txtMeblag, QStringLiteral("Lütfen Meblağn bilgisini Girin!!"));
  return true;
}

qint64 GunDegeri(const QString& txtGun) {
  return txtGun.isEmpty() ? 0 : qint64(Genel::YuvarlaBankaci(Genel::SayiOku(txtGun), 0));
}

// --- saving

qint64 MusteriNoOku(const QString& metin) {
  bool tamam = false;
  const qint64 no = metin.trimmed().toLongLong(&tamam);
  if (!tamam) throw Red{QStringLiteral("Müşteri Seçilmemiş")};
  return no;
}

double TutarOku(const QString& metin, const QString& alan) {
  if (metin.isEmpty()) return 0;
  double v = 0;
  if (!Genel::SayiOkuDene(metin, v)) throw Red{alan + QStringLiteral(" Sayı Değil")};
  return v;
}

QString KayitHataMetni() { return QStringLiteral("Bir Hata Oldu, Lütfen Bilgileri Kontrol Edin"); }

void KayitHatasi(const QString& neden) {
  mesaj::Kritik(KayitHataMetni() + QLatin1Char('\n') + neden, QStringLiteral("Hata"));
}

void DetayHatasi(const QString& neden) {
  mesaj::Kritik(KayitHataMetni() + QLatin1Char('\n') + neden, QStringLiteral("Hata Açıklaması"));
}

bool TarihFaizKontrol(QLineEdit* txtTarih, QLineEdit* txtFaizOran) {
  const auto hatali = [](QLineEdit* kutu, const QString& metin) {
    mesaj::Kritik(metin, QStringLiteral("Hatalı Giriş"));
    kutu->setFocus();
    return false;
  };
  if (!Genel::TarihOku(txtTarih->text()).isValid())
    return hatali(txtTarih, QStringLiteral("Lütfen Tarih Bilgisini Doldurun"));
  if (!Genel::SayiMi(txtFaizOran->text()))
    return hatali(txtFaizOran, QStringLiteral("Lütfen Faiz Oranı Bilgisini Girin"));
  return true;
}

QString Yaziyla(double Odenecek) {
  return Odenecek > 0 ? Genel::YaziyaCevir(Odenecek) : QStringLiteral("Sıfır");
}

}  // namespace contract
