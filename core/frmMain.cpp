#include "core/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QFrame>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

#include "core/BakimKomut.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "core/frmIni.h"
#include "db/Kayitlar.h"
#include "db/Sema.h"
#include "db/Yedek.h"

// --- background

frmbackground::frmbackground(QWidget* ust) : QWidget(ust) {
  setObjectName(QStringLiteral("frmbackground"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  Label1 = new QLabel(this);
  Label1->setObjectName(QStringLiteral("Label1"));
  Label1->setAlignment(Qt::AlignCenter);
  QFont f(QStringLiteral("DejaVu Serif"), 28, QFont::Bold);
  f.setItalic(true);
  Label1->setFont(f);
  Label1->setStyleSheet(QStringLiteral("color: #1f3a5f;"));
  for (int i = 0; i < 2; ++i) {
    auto* cizgi = new QFrame(this);
    cizgi->setFrameShape(QFrame::HLine);
    cizgi->setStyleSheet(QStringLiteral("color: #1f3a5f;"));
    cizgi->setLineWidth(2);
    Line1 << cizgi;
  }
}

void frmbackground::Form_Load() {
  Label1->setText(Genel::FirmaAdi + QLatin1Char('\n') + QStringLiteral(" YTL Bilgi Sistemi"));
  Label1->adjustSize();
}

void frmbackground::resizeEvent(QResizeEvent* e) {
  QWidget::resizeEvent(e);
  Label1->adjustSize();
  const int sol = (width() - Label1->width()) / 2;
  const int ust = (height() - Label1->height()) / 3;
  Label1->move(sol, ust);
  Line1[0]->setGeometry(sol, ust - 8, Label1->width(), 4);
  Line1[1]->setGeometry(sol, ust + Label1->height() + 4, Label1->width(), 4);
}

// --- about

frmhakkinda::frmhakkinda() {
  setWindowTitle(QStringLiteral("Bilgi"));
  auto* kutu = new QVBoxLayout(this);
  lblBaslik = new QLabel(QStringLiteral("Velmora Bilgi Sistemi"));
  QFont f = lblBaslik->font();
  f.setPointSize(f.pointSize() + 6);
  f.setBold(true);
  lblBaslik->setFont(f);
  lblBaslik->setAlignment(Qt::AlignCenter);
  lblVersiyon = new QLabel(QStringLiteral("Versiyon: %1.%2. Yapım:%3")
                               .arg(Genel::kMajor)
                               .arg(Genel::kMinor)
                               .arg(Genel::kRevision));
  lblVersiyon->setAlignment(Qt::AlignCenter);
  Command1 = new QPushButton(QStringLiteral("Tamam"));
  Command1->setObjectName(QStringLiteral("Command1"));
  kutu->addStretch();
  kutu->addWidget(lblBaslik);
  kutu->addWidget(lblVersiyon);
  kutu->addStretch();
  kutu->addWidget(Command1, 0, Qt::AlignCenter);
  connect(Command1, &QPushButton::clicked, this, &frmhakkinda::Kapat);
}

void frmhakkinda::Form_Load() { ekran::FormOrtala(this, 2600, 4800); }

// --- main window

frmMain::frmMain() {
  setObjectName(QStringLiteral("frmMain"));
  // The background stands behind a see-through work area, so that child
  // screens always cover it.
  auto* merkez = new QWidget(this);
  merkez->setAutoFillBackground(true);
  QPalette renk = merkez->palette();
  renk.setColor(QPalette::Window, QColor(0xe8, 0xee, 0xf4));
  merkez->setPalette(renk);
  setCentralWidget(merkez);
  mdi = new QMdiArea(merkez);
  mdi->setBackground(Qt::NoBrush);
  mdi->viewport()->setAutoFillBackground(false);
  merkez->installEventFilter(this);
  connect(mdi, &QMdiArea::subWindowActivated, this, [](QMdiSubWindow* alt) {
    if (!alt) return;
    auto* f = qobject_cast<ekran::Form*>(alt->widget());
    if (f && f->Yuklendi()) f->Form_Activate();
  });
  ekran::YerlestiriciKur([this](QWidget* w) { EkranYerlestir(w); }, [this] { return this; });

  const auto ac = [](const QString& ad) { return [ad] { ekran::Ac(ad); }; };
  mnuDosya = menuBar()->addMenu(QStringLiteral("Dosya"));
  mnuDosya->setObjectName(QStringLiteral("mnuDosya"));
  mnuFirma =
      Ekle(mnuDosya, "mnuFirma", QStringLiteral("Firma Bilgileri"), QStringLiteral("frmFirma"));
  mnuAraGuncel = Ekle(mnuDosya, "mnuAraGuncel", QStringLiteral("Arama Bilgisi Güncelle"),
                      QStringLiteral("mnuAraGuncel"));
  mnuAyarYedek = Ekle(mnuDosya, "mnuAyarYedek", QStringLiteral("Ayarların Yedeğini Al"),
                      QStringLiteral("mnuAyarYedek"));
  mnuBakim =
      Ekle(mnuDosya, "mnuBakim", QStringLiteral("Veri Tabanı Bakımı"), QStringLiteral("mnuBakim"));
  mnuGeriYukle = Ekle(mnuDosya, "mnuGeriYukle", QStringLiteral("Yedekten Geri Yükle"),
                      QStringLiteral("frmGeriYukle"));
  mnuCikis = Ekle(mnuDosya, "mnuCikis", QStringLiteral("Çıkış"), [] { QApplication::exit(0); });

  mnuMusteri = menuBar()->addAction(QStringLiteral("Müşteri"));
  mnuMusteri->setObjectName(QStringLiteral("mnuMusteri"));
  hedef_[mnuMusteri] = QStringLiteral("frmMusteri");
  connect(mnuMusteri, &QAction::triggered, this, ac(QStringLiteral("frmMusteri")));

  mnuIslem = menuBar()->addMenu(QStringLiteral("İşlem"));
  mnuIslem->setObjectName(QStringLiteral("mnuIslem"));
  mnuOdunc = Ekle(mnuIslem, "mnuOdunc", QStringLiteral("Sözleşme (Müşteri)"), [] {
    Genel::MusteriBazinda = true;
    ekran::Ac(QStringLiteral("frmSozles"));
  });
  hedef_[mnuOdunc] = QStringLiteral("frmSozles");
  mnuSozlesmeAll = Ekle(mnuIslem, "mnuSozlesmeAll", QStringLiteral("Sözleşme (Hepsi)"), [] {
    Genel::MusteriBazinda = false;
    ekran::Ac(QStringLiteral("frmSozles"));
  });
  hedef_[mnuSozlesmeAll] = QStringLiteral("frmSozles");
  mnuHesap =
      Ekle(mnuIslem, "mnuHesap", QStringLiteral("Hesaplama Ekranı"), QStringLiteral("frmHesap"));
  mnuTahsilat =
      Ekle(mnuIslem, "mnuTahsilat", QStringLiteral("Tahsilat"), QStringLiteral("frmTahsilat"));
  mnuSozNoDegis = Ekle(mnuIslem, "mnuSozNoDegis", QStringLiteral("Sözleşme No Değiş"),
                       QStringLiteral("frmNoDegis"));
  mnuKur = Ekle(mnuIslem, "mnuKur", QStringLiteral("Kur Bilgisi Giriş"),
                QStringLiteral("frmDovizTanim"));

  mnuRapor = menuBar()->addMenu(QStringLiteral("Raporlar"));
  mnuRapor->setObjectName(QStringLiteral("mnuRapor"));
  mnuMusteriBilgi = Ekle(mnuRapor, "mnuMusteriBilgi", QStringLiteral("Müsteri Bilgi"),
                         QStringLiteral("frmMusteriBilgi"));
  mnuCari = Ekle(mnuRapor, "mnuCari", QStringLiteral("Müşteri Cari Raporu"),
                 QStringLiteral("frmMusteriDurum"));
  mnuKesideci = Ekle(mnuRapor, "mnuKesideci", QStringLiteral("Kesideci Bilgi"),
                     QStringLiteral("frmKesideciBilgi"));
  mnuGelir = Ekle(mnuRapor, "mnuGelir", QStringLiteral("Gelir Raporu"), QStringLiteral("frmRapor"));
  mnuMaliye =
      Ekle(mnuRapor, "mnuMaliye", QStringLiteral("Maliye Raporu"), QStringLiteral("frmMaliye"));

  mnuAyarlar = menuBar()->addAction(QStringLiteral("Ayarlar"));
  mnuAyarlar->setObjectName(QStringLiteral("mnuAyarlar"));
  hedef_[mnuAyarlar] = QStringLiteral("frmIni");
  connect(mnuAyarlar, &QAction::triggered, this, ac(QStringLiteral("frmIni")));

  mnuAbout1 = menuBar()->addMenu(QStringLiteral("Hakkında"));
  mnuAbout1->setObjectName(QStringLiteral("mnuAbout1"));
  mnuAbout = Ekle(mnuAbout1, "mnuAbout", QStringLiteral("Hakkında"), QStringLiteral("frmhakkinda"));
  mnuVersiyon = Ekle(mnuAbout1, "mnuVersiyon", QStringLiteral("Versiyon Yükselt"),
                     QStringLiteral("mnuVersiyon"));
  mnuYTL =
      Ekle(mnuAbout1, "mnuYTL", QStringLiteral("YTL Dönüştürme İşlemi"), QStringLiteral("mnuYTL"));
  mnuPulBedeli = Ekle(mnuAbout1, "mnuPulBedeli", QStringLiteral("Pul Bedeli Güncelleştirmesi"),
                      QStringLiteral("mnuPulBedeli"));
  kapali_ = {mnuSozNoDegis, mnuYTL, mnuPulBedeli};

  ekran::Kaydet(QStringLiteral("frmhakkinda"), [] { return new frmhakkinda; });
  ekran::Kaydet(QStringLiteral("frmIni"), [] { return new frmIni; });
  bakim::KomutlariKaydet();
  MenuDurumu();
  for (QMenu* m : {mnuDosya, mnuIslem, mnuRapor, mnuAbout1})
    connect(m, &QMenu::aboutToShow, this, &frmMain::MenuDurumu);
  resize(1180, 760);
}

frmMain::~frmMain() { ekran::YerlestiriciKur(nullptr, nullptr); }

QAction* frmMain::Ekle(QMenu* menu, const char* ad, const QString& baslik, const QString& hedef) {
  QAction* a = menu->addAction(baslik);
  a->setObjectName(QString::fromLatin1(ad));
  hedef_[a] = hedef;
  connect(a, &QAction::triggered, this, [hedef] { ekran::AcVeyaCalistir(hedef); });
  return a;
}

QAction* frmMain::Ekle(QMenu* menu, const char* ad, const QString& baslik,
                       std::function<void()> is) {
  QAction* a = menu->addAction(baslik);
  a->setObjectName(QString::fromLatin1(ad));
  connect(a, &QAction::triggered, this, std::move(is));
  return a;
}

void frmMain::MenuDurumu() {
  for (auto it = hedef_.begin(); it != hedef_.end(); ++it) {
    it.key()->setEnabled(ekran::Hazir(it.value()) && !kapali_.contains(it.key()));
  }
}

void frmMain::EkranYerlestir(QWidget* w) {
  QMdiSubWindow* alt = mdi->addSubWindow(w);
  alt->setAttribute(Qt::WA_DeleteOnClose);
  alt->setWindowIcon(QIcon());
  w->show();
  alt->show();
  mdi->setActiveSubWindow(alt);
}

QString frmMain::Baslik(const QString& firmaAdi) {
  return firmaAdi + QStringLiteral(" - YTL ") + QStringLiteral("Velmora Bilgi İşlem Sistemi. V.") +
         QString::number(Genel::kMajor) + QLatin1Char('.') + QString::number(Genel::kMinor);
}

bool frmMain::Form_Load() {
  if (!Genel::BinlikAyiriciBul())
    mesaj::Kritik(QStringLiteral("Bilinmeyen binlik numara ayırıcısı!!"), QStringLiteral("UYARI"));
  const QString dizin = Genel::WindowsDizini();
  if (dizin.isEmpty()) {
    mesaj::Kritik(QStringLiteral("Windows Dizini Bulunamadı!!!"), QStringLiteral("ÖNEMLİ HATA"));
    close();
    return false;
  }
  Genel::IniDosya = dizin + QStringLiteral("/velmora.ini");
  try {
    Genel::AyarOku();
    VeriTabaniAc();
    GunlukYedek();
    FirmaOku();
  } catch (const std::exception&) {
    // A file that opened stays open, so that the firm screen can mend its row.
    mesaj::Kritik(QStringLiteral("Veri tabanı açılamadı. Ayarlarınızı kontrol ediniz!"),
                  QStringLiteral("HATA"));
    ekran::Ac(QStringLiteral("frmIni"));
    return true;
  }
  setWindowTitle(Baslik(Genel::FirmaAdi));
  if (arka) arka->Form_Load();
  // Until the office has a name, every start asks for it.
  if (Genel::FirmaAdi.isEmpty()) ekran::Ac(QStringLiteral("frmFirma"));
  return true;
}

void frmMain::VeriTabaniAc() {
  if (Genel::VeriDizini().isEmpty()) throw db::Hata(QStringLiteral("Veri dizini oluşturulamadı"));
  const QString yol = Genel::VeriTabaniYolu();
  // The first start brings the tables and the reference data along.
  if (QFile::exists(yol)) {
    Genel::Baglanti.Ac(yol);
    // An office without a print template gets the delivered one; a file that
    // can't take it now still opens.
    try {
      db::SablonBossaYukle(Genel::Baglanti);
    } catch (const db::Hata&) {
    }
    RaporlariHazirla();
  } else {
    Genel::Baglanti.Olustur(yol);
  }
}

void frmMain::RaporlariHazirla() {
  // A file from before the reports' indexes and summary gets them now (on a
  // large file this takes a few seconds, once); one that can't take them now
  // still opens, only its reports are slower.
  try {
    std::optional<ekran::BeklemeNotu> not_;
    db::RaporlariHazirla(Genel::Baglanti, [&not_] {
      not_.emplace(
          QStringLiteral("Veri tabanı raporlar için hazırlanıyor, lütfen bekleyiniz..."));
    });
  } catch (const db::Hata&) {
  }
}

void frmMain::GunlukYedek() {
  try {
    std::optional<ekran::BeklemeNotu> not_;
    if (Genel::Baglanti.Acik() &&
        !QFile::exists(db::TarihliYedekYolu(Genel::Baglanti.Yol(), QDate::currentDate())))
      not_.emplace(QStringLiteral("Günlük yedek alınıyor, lütfen bekleyiniz..."));
    db::GunlukYedekAl(Genel::Baglanti, QDate::currentDate());
  } catch (const db::Hata& h) {
    mesaj::Uyari(QStringLiteral("Günlük yedek alınamadı.\n") + h.metin(), QStringLiteral("UYARI"));
  }
}

void frmMain::FirmaYenile() {
  try {
    FirmaOku();
  } catch (const db::Hata&) {
    // The firm screen mends a row that can't be read; the title stays empty.
    Genel::FirmaAdi.clear();
  }
  setWindowTitle(Baslik(Genel::FirmaAdi));
  if (arka) arka->Form_Load();
}

void frmMain::FirmaOku() {
  db::Kayitlar rs = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Firma"));
  if (rs.Eof()) throw db::Hata(QStringLiteral("Firma kaydı yok"));
  const QVariant seriS = rs.Fields(QStringLiteral("SozlesmeSeri"));
  const QVariant seriF = rs.Fields(QStringLiteral("FaturaSeri"));
  const QVariant ad = rs.Fields(QStringLiteral("Soyadi"));
  if (db::NullMu(seriS) || db::NullMu(seriF) || db::NullMu(ad))
    throw db::Hata(QStringLiteral("Firma kaydında boş alan var"));
  Genel::SozlesmeSeri = seriS.toString();
  Genel::FaturaSeri = seriF.toString();
  Genel::FirmaAdi = ad.toString();
}

void frmMain::ArkaPlan() {
  if (!arka) {
    arka = new frmbackground(centralWidget());
    arka->Form_Load();
  }
  arka->setGeometry(0, 0, std::max(0, width() - ekran::Twip(300)),
                    std::max(0, height() - ekran::Twip(1100)));
  arka->lower();
  arka->show();
}

bool frmMain::eventFilter(QObject* o, QEvent* e) {
  if (o == centralWidget() && e->type() == QEvent::Resize)
    mdi->setGeometry(centralWidget()->rect());
  return QMainWindow::eventFilter(o, e);
}

void frmMain::resizeEvent(QResizeEvent* e) {
  QMainWindow::resizeEvent(e);
  ArkaPlan();
}

void frmMain::showEvent(QShowEvent* e) {
  QMainWindow::showEvent(e);
  ArkaPlan();
}

void frmMain::closeEvent(QCloseEvent* e) {
  // Ends at once, with no question, also over a record being edited.
  e->accept();
  QApplication::exit(0);
}
