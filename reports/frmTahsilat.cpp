#include "reports/frmTahsilat.h"

#include <QDate>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Rapor.h"
#include "reports/IzgaraCsv.h"
#include "reports/Tahsilat.h"
#include "reports/rptCekler.h"

namespace {

QPushButton* Dugme(const char* ad, const QString& baslik) {
  auto* d = new QPushButton(baslik);
  d->setObjectName(QString::fromLatin1(ad));
  return d;
}

QLineEdit* Toplam(const char* ad) {
  QLineEdit* k = ekran::Kutu(QString::fromLatin1(ad), 0, false);
  k->setAlignment(Qt::AlignRight);
  ekran::SaltOkunur(k, true);
  return k;
}

QLabel* Gizli(const char* ad) {
  auto* l = new QLabel;
  l->setObjectName(QString::fromLatin1(ad));
  l->hide();
  return l;
}

const QString kHepsi = QStringLiteral("Hepsi");

}  // namespace

frmTahsilat::frmTahsilat() {
  setWindowTitle(QStringLiteral("Tahsilatlar"));
  for (int i = 0; i < 2; ++i) {
    txtTarih[i] = ekran::Kutu(QStringLiteral("txtTarih%1").arg(i), 10, false);
    ekran::TarihKutusu(txtTarih[i]);
  }
  cmbBanka = new QComboBox;
  cmbBanka->setObjectName(QStringLiteral("cmbBanka"));
  txtKesideci = ekran::Kutu(QStringLiteral("txtKesideci"));
  txtCekNo = ekran::Kutu(QStringLiteral("txtCekNo"));
  txtTopAdet = Toplam("txtTopAdet");
  txtTopTutar = Toplam("txtTopTutar");
  txtSizAdet = Toplam("txtSizAdet");
  txtSizTutar = Toplam("txtSizTutar");
  grdCek = new ekran::Izgara;
  grdCek->setObjectName(QStringLiteral("grdCek"));
  {
    ekran::IzgaraModeli* m = grdCek->Model();
    m->Basliklar({{"GirisNo", "GirisNo"},
                  {"SozlesmeNo", "Sözleşme No"},
                  {"Tip", "Tip"},
                  {"Kesideci", "Keşideci"},
                  {"Banka", "Banka"},
                  {"Sube", "Şube"},
                  {"HesapNo", "Hesap"},
                  {"CekNo", "Çek No"},
                  {"Vadesi", "Vadesi"},
                  {"Meblag", "Meblağ"},
                  {"Doviz", "Döviz"},
                  {"Odenmesi", "Ödeme "}});
    m->TarihBicimi(QStringLiteral("Vadesi"));
    m->SayiBicimi(QStringLiteral("Meblag"), 2);
    m->TarihBicimi(QStringLiteral("Odenmesi"));
  }
  lblDuyuru = Gizli("lblDuyuru");
  lblOdemeTarih = Gizli("lblOdemeTarih");
  lblCevap = Gizli("lblCevap");
  cmdListe = Dugme("cmdListe", QStringLiteral("Listele"));
  cmdCiftTik = Dugme("cmdCiftTik", QStringLiteral("Durum Değiştir"));
  cmdYazdir = Dugme("cmdYazdir", QStringLiteral("Yazdır"));
  cmdCsv = csv::CsvDugmesi();
  cmdExit = Dugme("cmdExit", QStringLiteral("Çıkış"));
  ekran::KontrolTetiklemez(cmdExit);

  auto* secim = new QGridLayout;
  secim->addWidget(new QLabel(QStringLiteral("Başlangıç:")), 0, 0);
  secim->addWidget(txtTarih[0], 0, 1);
  secim->addWidget(new QLabel(QStringLiteral("Bitiş:")), 0, 2);
  secim->addWidget(txtTarih[1], 0, 3);
  secim->addWidget(new QLabel(QStringLiteral("Banka:")), 0, 4);
  secim->addWidget(cmbBanka, 0, 5);
  secim->addWidget(new QLabel(QStringLiteral("Keşideci:")), 1, 0);
  secim->addWidget(txtKesideci, 1, 1, 1, 3);
  secim->addWidget(new QLabel(QStringLiteral("Çek No: ")), 1, 4);
  secim->addWidget(txtCekNo, 1, 5);
  secim->addWidget(cmdListe, 0, 6, 2, 1);
  secim->setColumnStretch(5, 1);

  auto* toplamlar = new QGridLayout;
  toplamlar->addWidget(new QLabel(QStringLiteral("Adet")), 0, 1, Qt::AlignHCenter);
  toplamlar->addWidget(new QLabel(QStringLiteral("TL.")), 0, 2, Qt::AlignHCenter);
  toplamlar->addWidget(new QLabel(QStringLiteral("Toplam Ödenen:")), 1, 0);
  toplamlar->addWidget(txtTopAdet, 1, 1);
  toplamlar->addWidget(txtTopTutar, 1, 2);
  toplamlar->addWidget(new QLabel(QStringLiteral("Toplam Karşılıksız:")), 2, 0);
  toplamlar->addWidget(txtSizAdet, 2, 1);
  toplamlar->addWidget(txtSizTutar, 2, 2);
  toplamlar->setColumnStretch(3, 1);

  auto* dugmeler = new QHBoxLayout;
  dugmeler->addWidget(new QLabel(
      QStringLiteral("Ödeme durumunu değiştirmek için Listeden seçip \"Çift Tıklama\" Yapınız.")));
  dugmeler->addStretch();
  for (QPushButton* d : {cmdCiftTik, cmdYazdir, cmdCsv, cmdExit}) dugmeler->addWidget(d);

  auto* ana = new QVBoxLayout(this);
  ana->addLayout(secim);
  ana->addWidget(grdCek, 1);
  ana->addLayout(toplamlar);
  ana->addLayout(dugmeler);
  for (QLabel* l : {lblDuyuru, lblOdemeTarih, lblCevap}) ana->addWidget(l);

  const auto korumali = [this](void (frmTahsilat::*f)()) {
    return [this, f] { ekran::Korumali([this, f] { (this->*f)(); }); };
  };
  connect(cmdListe, &QPushButton::clicked, this, korumali(&frmTahsilat::cmdListe_Click));
  connect(cmdCiftTik, &QPushButton::clicked, this, korumali(&frmTahsilat::cmdCiftTik_Click));
  connect(grdCek, &ekran::Izgara::CiftTiklandi, this, korumali(&frmTahsilat::grdCek_DblClick));
  connect(cmdYazdir, &QPushButton::clicked, this, korumali(&frmTahsilat::cmdYazdir_Click));
  connect(cmdCsv, &QPushButton::clicked, this, korumali(&frmTahsilat::cmdCsv_Click));
  connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
}

frmTahsilat::~frmTahsilat() { grdCek->Bagla(nullptr); }

void frmTahsilat::Form_Load() {
  ekran::FormOrtala(this, 7500, 11500);
  cmbBanka->clear();
  cmbBanka->addItem(kHepsi);
  db::Kayitlar bankalar = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT DISTINCT Banka FROM SozlesmeDetay WHERE Banka IS NOT NULL"));
  for (bankalar.MoveFirst(); !bankalar.Eof(); bankalar.MoveNext()) {
    const QString banka = bankalar.Metin(QStringLiteral("Banka"));
    if (!banka.isEmpty()) cmbBanka->addItem(banka);
  }
  cmbBanka->setCurrentIndex(0);
  const QDate bugun = QDate::currentDate();
  txtTarih[0]->setText(Genel::TarihYaz(bugun.addDays(-15)));
  txtTarih[1]->setText(Genel::TarihYaz(bugun.addDays(7)));
  cmdListe_Click();
}

void frmTahsilat::cmdListe_Click() {
  // A date box still holding what the clerk typed is checked first: nothing
  // is listed by a half-typed date.
  for (QLineEdit* t : txtTarih) {
    if (!ekran::KontrolCalistir(t)) {
      t->setFocus();
      ekran::MetinSec(t);
      return;
    }
  }
  Listele();
}

void frmTahsilat::Listele() {
  tahsilat::Secim s;
  s.bas = txtTarih[0]->text();
  s.son = txtTarih[1]->text();
  if (cmbBanka->currentText() != kHepsi) s.banka = cmbBanka->currentText();
  s.kesideci = txtKesideci->text();
  s.cekNo = txtCekNo->text();
  const tahsilat::Kosul k = tahsilat::KosulKur(s);

  for (QLineEdit* t : {txtTopAdet, txtTopTutar, txtSizAdet, txtSizTutar}) t->clear();
  const tahsilat::Toplamlar t = tahsilat::ToplamlariOku(k);
  if (t.odenen) {
    txtTopAdet->setText(QString::number(t.odenen->adet));
    txtTopTutar->setText(tahsilat::TutarYazisi(t.odenen->tutar));
  }
  if (t.karsiliksiz) {
    txtSizAdet->setText(QString::number(t.karsiliksiz->adet));
    txtSizTutar->setText(tahsilat::TutarYazisi(t.karsiliksiz->tutar));
  }

  db::Kayitlar yeni = Genel::Baglanti.Sorgu(tahsilat::ListeSorgusu(k), k.deger);
  grdCek->Bagla(nullptr);
  rsCek = std::move(yeni);
  grdCek->Bagla(&rsCek);
  listeVar_ = true;
}

void frmTahsilat::grdCek_DblClick() { DurumDegistir(); }

void frmTahsilat::cmdCiftTik_Click() { DurumDegistir(); }

void frmTahsilat::DurumDegistir() {
  if (!listeVar_ || !rsCek.SatirVar()) return;
  const qint64 giris = rsCek.Fields(QStringLiteral("GirisNo")).toLongLong();
  lblDuyuru->setText(rsCek.Metin(QStringLiteral("SozlesmeNo")) + QStringLiteral(" Sözleşme Nolu ") +
                     rsCek.Metin(QStringLiteral("Kesideci")) + QStringLiteral(" Keşideli ") +
                     rsCek.Metin(QStringLiteral("Tip")));
  lblOdemeTarih->setText(Genel::TarihEkran(rsCek.Fields(QStringLiteral("Odenmesi"))));
  lblCevap->clear();
  {
    Dialog d(*this);
    d.exec();
  }
  const QString cevap = lblCevap->text();
  if (cevap == QStringLiteral("Vazgeç")) return;

  // A failed write (another program holding the file past the waiting time)
  // is shown; the line is read again either way, so it shows what the
  // database holds. Only the state of this line changed: the rest of the list
  // isn't read again.
  ekran::Korumali([&] { tahsilat::DurumYaz(giris, tahsilat::OdemeDegeri(cevap)); });
  rsCek.SatirYenile(QStringLiteral("GirisNo"), giris, tahsilat::SatirSorgusu(), {giris});
  grdCek->Model()->Yenile();
  grdCek->Model()->Uygula(grdCek);
  if (!rsCek.Find(QStringLiteral("GirisNo"), giris, true)) rsCek.MoveFirst();
  grdCek->KayidaGit();
}

void frmTahsilat::cmdYazdir_Click() {
  if (!listeVar_) return;
  const QString tarihler = QStringLiteral("Tarih Aralığı: ") + txtTarih[0]->text() +
                           QStringLiteral(" - ") + txtTarih[1]->text();
  rapor::Goster(reports::rptCekler(rsCek, tarihler), this);
}

void frmTahsilat::cmdCsv_Click() {
  if (!listeVar_) return;
  csv::IzgaraKaydet(grdCek, QStringLiteral("tahsilatlar.csv"), this);
}

void frmTahsilat::cmdExit_Click() { Kapat(); }

// --- Dialog

Dialog::Dialog(frmTahsilat& ust) : QDialog(&ust), ust_(ust) {
  setObjectName(QStringLiteral("Dialog"));
  setWindowTitle(QStringLiteral("Ödeme Bilgisi"));
  lblDuyuru = new QLabel(ust.lblDuyuru->text());
  lblDuyuru->setObjectName(QStringLiteral("lblDuyuru"));
  lblDuyuru->setWordWrap(true);
  txtTarih = ekran::Kutu(QStringLiteral("txtTarih"), 10, false);
  ekran::TarihKutusu(txtTarih);
  txtTarih->setText(ust.lblOdemeTarih->text());
  OKButton = new QPushButton(QStringLiteral("Tamam"));
  OKButton->setObjectName(QStringLiteral("OKButton"));
  OKButton->setDefault(true);
  OKButton->setAutoDefault(true);
  cmdOdenmedi = new QPushButton(QStringLiteral("Ödenmedi"));
  cmdOdenmedi->setObjectName(QStringLiteral("cmdOdenmedi"));
  cmdOdenmedi->setAutoDefault(false);
  CancelButton = new QPushButton(QStringLiteral("Vazgeç"));
  CancelButton->setObjectName(QStringLiteral("CancelButton"));
  CancelButton->setAutoDefault(false);
  // Neither answer reads the date, so neither waits for it to be right.
  ekran::KontrolTetiklemez(cmdOdenmedi);
  ekran::KontrolTetiklemez(CancelButton);

  auto* tarih = new QHBoxLayout;
  tarih->addWidget(new QLabel(QStringLiteral("Ödenme Tarihi")));
  tarih->addWidget(txtTarih);
  tarih->addStretch();
  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  for (QPushButton* d : {OKButton, cmdOdenmedi, CancelButton}) dugmeler->addWidget(d);
  auto* ana = new QVBoxLayout(this);
  ana->addWidget(lblDuyuru);
  ana->addLayout(tarih);
  ana->addLayout(dugmeler);

  connect(OKButton, &QPushButton::clicked, this, [this] { OKButton_Click(); });
  connect(cmdOdenmedi, &QPushButton::clicked, this, [this] { cmdOdenmedi_Click(); });
  connect(CancelButton, &QPushButton::clicked, this, [this] { CancelButton_Click(); });
  txtTarih->setFocus();
}

void Dialog::OKButton_Click() {
  // Enter on the default button doesn't leave the box: its check runs here.
  if (!ekran::KontrolCalistir(txtTarih)) {
    txtTarih->setFocus();
    ekran::MetinSec(txtTarih);
    return;
  }
  ust_.lblCevap->setText(txtTarih->text());
  accept();
}

void Dialog::cmdOdenmedi_Click() {
  ust_.lblCevap->clear();
  accept();
}

void Dialog::CancelButton_Click() { reject(); }

void Dialog::reject() {
  ust_.lblCevap->setText(QStringLiteral("Vazgeç"));
  QDialog::reject();
}

namespace reports {
void TahsilatEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmTahsilat"), [] { return new frmTahsilat; });
}
}  // namespace reports
