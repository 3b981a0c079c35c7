#include "transfer/frmMaliye.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QProcess>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "transfer/MaliyeAktarim.h"

namespace {

const char* const kAylar[] = {"Ocak",   "Şubat",   "Mart",  "Nisan", "Mayıs", "Haziran",
                              "Temmuz", "Ağustos", "Eylül", "Ekim",  "Kasım", "Aralık"};
constexpr int kIlkYil = 2000;

const QString kHata = QStringLiteral("HATA");

// "#,###": whole numbers in groups, nothing for 0.
QString BinlikGrup(const QVariant& v) {
  if (db::NullMu(v)) return QString();
  const double x = Genel::YuvarlaYarimYukari(v.toDouble(), 0);
  return x == 0 ? QString() : Genel::SayiYaz(x, 0);
}

}  // namespace

std::function<void(const QString&)>& frmMaliye::DosyaAcici() {
  static std::function<void(const QString&)> ac = [](const QString& yol) {
    // Where the desktop has no program for it, nothing more is said.
    QProcess::startDetached(QStringLiteral("xdg-open"), {yol});
  };
  return ac;
}

frmMaliye::frmMaliye() {
  setWindowTitle(QStringLiteral("Maliye Raporu Hazırla"));
  for (int i = 0; i < 2; ++i) {
    cmbAy[i] = new QComboBox;
    cmbAy[i]->setObjectName(QStringLiteral("cmbAy%1").arg(i));
    cmbYear[i] = new QComboBox;
    cmbYear[i]->setObjectName(QStringLiteral("cmbYear%1").arg(i));
  }
  txtLimit = ekran::Kutu(QStringLiteral("txtLimit"));
  lblEtiket[0] = new QLabel(QStringLiteral("Dönem:"));
  lblEtiket[1] = new QLabel(QStringLiteral("-"));
  lblEtiket[2] = new QLabel(QStringLiteral("Aktarım Limiti (YTL): "));
  lblAdres = new QLabel;
  lblMesaj = new QLabel;
  lblMesaj->setObjectName(QStringLiteral("lblMesaj"));
  cmdHazirla = new QPushButton(QStringLiteral("Dosya Hazırla"));
  cmdHazirla->setObjectName(QStringLiteral("cmdHazirla"));
  cmdCSV = new QPushButton(QStringLiteral("Raporu CSV olarak Kaydet"));
  cmdCSV->setObjectName(QStringLiteral("cmdCSV"));
  cmdExit = new QPushButton(QStringLiteral("Çıkış"));
  cmdExit->setObjectName(QStringLiteral("cmdExit"));
  ekran::KontrolTetiklemez(cmdExit);
  DataGrid1 = new ekran::Izgara;
  DataGrid1->setObjectName(QStringLiteral("DataGrid1"));

  auto* donem = new QHBoxLayout;
  donem->addWidget(lblEtiket[0]);
  donem->addWidget(cmbAy[0]);
  donem->addWidget(cmbYear[0]);
  donem->addWidget(lblEtiket[1]);
  donem->addWidget(cmbAy[1]);
  donem->addWidget(cmbYear[1]);
  donem->addStretch();
  auto* limit = new QHBoxLayout;
  limit->addWidget(lblEtiket[2]);
  limit->addWidget(txtLimit);
  limit->addStretch();
  auto* dugmeler = new QHBoxLayout;
  dugmeler->addWidget(cmdHazirla);
  dugmeler->addWidget(cmdCSV);
  dugmeler->addStretch();
  dugmeler->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addLayout(donem);
  ana->addLayout(limit);
  ana->addWidget(lblAdres);
  ana->addWidget(lblMesaj);
  ana->addLayout(dugmeler);
  ana->addWidget(DataGrid1, 1);
  // Takes the room the hidden grid leaves, so that the fields stay together.
  ana->addStretch();
  txtLimit->setMaximumWidth(ekran::Twip(1800));
  cmdCSV->setVisible(false);
  DataGrid1->setVisible(false);

  ekran::AyrilirkenKontrol(txtLimit, [this] { return txtLimit_Validate(); });
  connect(cmdHazirla, &QPushButton::clicked, this, [this] { cmdHazirla_Click(); });
  connect(cmdCSV, &QPushButton::clicked, this, [this] { cmdCSV_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
}

frmMaliye::~frmMaliye() { DataGrid1->Bagla(nullptr); }

void frmMaliye::Form_Load() {
  ekran::FormOrtala(this, 8000, 11500);
  const int buYil = QDate::currentDate().year();
  for (int i = 0; i < 2; ++i) {
    for (const char* ay : kAylar) cmbAy[i]->addItem(QString::fromUtf8(ay));
    cmbAy[i]->setCurrentIndex(-1);
    for (int y = kIlkYil; y <= buYil + 1; ++y) cmbYear[i]->addItem(QString::number(y));
    cmbYear[i]->setCurrentIndex(buYil - kIlkYil);
  }
  txtLimit->setText(Genel::SayiYaz(10000, 0));
  lblAdres->setText(
      QStringLiteral("Gönderilecek Adres: \n"
                     "Gelirler Genel Müdürlüğü Vergi İstihbarat Merkezi\n"
                     "Yeni Ziraat Mah. Etlik Cad. No:16 06110 Dışkapı / Ankara"));
}

bool frmMaliye::txtLimit_Validate() {
  double limit = 0;
  if (!Genel::SayiMi(txtLimit->text(), &limit)) {
    mesaj::Kritik(QStringLiteral("Geçerli bir limit giriniz."), kHata);
    return false;
  }
  txtLimit->setText(Genel::SayiYaz(aktarim::LimitKurali(limit), 0));
  return true;
}

void frmMaliye::cmdHazirla_Click() {
  // The button is disabled for the run; a press that still arrives is dropped.
  if (calisiyor_) return;
  calisiyor_ = true;
  cmdHazirla->setEnabled(false);
  Calistir();
  cmdHazirla->setEnabled(true);
  calisiyor_ = false;
}

void frmMaliye::Calistir() {
  if (cmbAy[0]->currentIndex() < 0 || cmbAy[1]->currentIndex() < 0) {
    mesaj::Bilgi(QStringLiteral("Lütfen ilk olarak dönemi seçiniz."), QStringLiteral("HATIRLATMA"));
    return;
  }
  double limit = 0;
  if (!Genel::SayiMi(txtLimit->text(), &limit)) {
    mesaj::Kritik(QStringLiteral("Geçerli bir limit giriniz."), kHata);
    txtLimit->setFocus();
    ekran::MetinSec(txtLimit);
    return;
  }
  aktarim::Istek istek;
  istek.limit = aktarim::LimitKurali(limit);
  istek.bas = aktarim::DonemBasi(cmbAy[0]->currentIndex() + 1, cmbYear[0]->currentText().toInt());
  istek.son = aktarim::DonemSonu(cmbAy[1]->currentIndex() + 1, cmbYear[1]->currentText().toInt());
  if (istek.bas > istek.son) {
    mesaj::Kritik(QStringLiteral("Başlangıç Tarihi Bitiş Tarihinden Küçük Olmalı"), kHata);
    return;
  }
  istek.bugun = QDate::currentDate();

  // The running count; the screen repaints and takes the clerk's events, at
  // most every 50 ms so that a long period is not slowed by the painting.
  QElapsedTimer saat;
  saat.start();
  aktarim::Geri geri;
  const auto sayac = [this](int n) {
    lblMesaj->setText(QStringLiteral("Aktarılan Kayıt: ") + Genel::SayiYaz(n, 0));
    lblMesaj->repaint();
    QCoreApplication::processEvents();
  };
  geri.ilerleme = [&saat, &sayac](int n) {
    if (n > 1 && saat.elapsed() < 50) return;
    saat.restart();
    sayac(n);
  };
  // The count stands whole while the file is put together and checked.
  geri.yazildi = sayac;
  geri.kurUyarisi = [](const QString& metin) { mesaj::Kritik(metin, QStringLiteral("UYARI")); };

  aktarim::Sonuc sonuc;
  try {
    istek.klasor = aktarim::CiktiDizini();
    sonuc = aktarim::Hazirla(Genel::Baglanti, istek, geri);
  } catch (const db::Hata& h) {
    ekran::HataGoster(h);
    return;
  } catch (const aktarim::DosyaHatasi& h) {
    mesaj::Kritik(QStringLiteral("Bir Hata Oluştu\n") + h.metin(), kHata);
    return;
  }

  if (!sonuc.hatalar.isEmpty()) {
    QString liste;
    for (const QString& h : sonuc.hatalar) liste += h + QStringLiteral("\r\n");
    mesaj::Goster(liste, QString(), mesaj::Tur::Duz);
  }
  DataGrid1->Bagla(nullptr);
  rsKontrol = db::Kayitlar();
  const bool satirVar = sonuc.yapilan > 0;
  if (satirVar) {
    // The run kept none of its rows; the grid reads them now.
    try {
      rsKontrol = aktarim::KontrolSatirlari(Genel::Baglanti, istek);
    } catch (const db::Hata& h) {
      ekran::HataGoster(h);
    }
    DataGrid1->Bagla(&rsKontrol);
    GridDuzenle();
  }
  DataGrid1->setVisible(satirVar);
  cmdCSV->setVisible(satirVar);
  lblMesaj->setText(QString(sonuc.ozet).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  DosyaAcici()(sonuc.dosya);
  QString kapanis = QStringLiteral(
                        "XML Dosyası %1 olarak UTF-8 kodlamasıyla kaydedilmiştir.\n"
                        "Dosya, masaüstünün XML dosyaları için seçili uygulamasıyla açılır.\n")
                        .arg(sonuc.dosya);
  if (sonuc.semaHatasi.isEmpty()) {
    kapanis += QStringLiteral(
        "Bu işlemden sonra Dosya CD ye yazılarak Maliye ye gönderilmeye hazır olacaktır");
    mesaj::Bilgi(kapanis, QStringLiteral("DİKKAT"));
  } else {
    // Kept for the clerk to look at, never shipped silently.
    kapanis += QStringLiteral(
                   "Dosya şema denetiminden geçmedi, bu haliyle gönderilmemelidir.\n"
                   "İlk hata: ") +
               sonuc.semaHatasi;
    mesaj::Uyari(kapanis, QStringLiteral("DİKKAT"));
  }
}

void frmMaliye::GridDuzenle() {
  struct Ayar {
    const char* alan;
    const char* baslik;
    bool gorunur;
  };
  static const Ayar ayarlar[] = {
      {"VergiKimlikNo", "Vergi No", true},
      {"MusteriNo", "Müşteri No", false},
      {"Soyadi", "Soyadı", true},
      {"Adi", "Adı", true},
      {"BabaAdi", "Baba Adı", true},
      {"Adres", "Adres", true},
      {"Ilce", "İlçe", true},
      {"PostaKod", "P Kod", true},
      {"Il_Ad", "İl", true},
      {"IlKod", "İl Kod", false},
      {"TCKimlikNo", "TC Kimlik", false},
      {"VekilDurum", "Vekil Durum", false},
      {"VekilVergiKimlik", "Vekil Vergi", false},
      {"VekilSoyadi", "Vekil Adi", false},
      {"VekilAdi", "Vekil Soyadı", false},
      {"Uyruk", "Uyruk", false},
      {"HukukiDurum", "Hukuki Durum", false},
      {"TIP", "Tip", false},
      {"Doviz", "Döviz", false},
      {"Tarih", "Tarih", true},
      {"Tutar", "Tutar", true},
      {"FaizTutar", "Faiz Tutar", true},
      {"SozlesmeSeri", "Seri", true},
      {"SozlesmeNo", "No", true},
  };
  ekran::IzgaraModeli* m = DataGrid1->Model();
  for (const Ayar& a : ayarlar) {
    const QString alan = QString::fromLatin1(a.alan);
    m->Baslik(alan, QString::fromUtf8(a.baslik));
    m->Gizle(alan, !a.gorunur);
  }
  m->TarihBicimi(QStringLiteral("Tarih"));
  for (const char* alan : {"Tutar", "FaizTutar"}) {
    ekran::IzgaraModeli::Sutun& s = m->Ayar(QString::fromLatin1(alan));
    s.yaz = BinlikGrup;
    s.hiza = Qt::AlignRight | Qt::AlignVCenter;
  }
  m->Yenile();
  m->Uygula(DataGrid1);
}

void frmMaliye::cmdCSV_Click() {
  try {
    aktarim::KontrolListesiYaz(rsKontrol, aktarim::CiktiDizini());
  } catch (const aktarim::DosyaHatasi& h) {
    mesaj::Kritik(QStringLiteral("Bir Hata Oluştu\n") + h.metin(), kHata);
    return;
  }
  rsKontrol.MoveFirst();
  DataGrid1->KayidaGit();
}

void frmMaliye::cmdExit_Click() { Kapat(); }

void frmMaliye::closeEvent(QCloseEvent* e) {
  if (calisiyor_) {
    e->ignore();
    return;
  }
  Form::closeEvent(e);
}

namespace transfer {
void MaliyeEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmMaliye"), [] { return new frmMaliye; });
}
}  // namespace transfer
