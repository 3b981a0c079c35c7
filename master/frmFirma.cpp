#include "master/frmFirma.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"

namespace {

// The province the lists stand on when nothing else is known: the 34th.
constexpr int kVarsayilanIl = 33;

QString Metin(const db::Kayitlar& rs, const char* alan) {
  return rs.Metin(QString::fromLatin1(alan));
}

}  // namespace

frmFirma::frmFirma() {
  setWindowTitle(QStringLiteral("Velmora Firma Bilgileri"));
  txtKurulusKod = ekran::Kutu(QStringLiteral("txtKurulusKod"), 2);
  txtVergiKimlikNo = ekran::Kutu(QStringLiteral("txtVergiKimlikNo"), 10);
  cmbTur = new QComboBox;
  cmbTur->setObjectName(QStringLiteral("cmbTur"));
  cmbTur->addItems({QStringLiteral("Kişi"), QStringLiteral("Kuruluş")});
  txtSoyadi = ekran::Kutu(QStringLiteral("txtSoyadi"), 20);
  txtAdi = ekran::Kutu(QStringLiteral("txtAdi"), 16);
  txtBabaAdi = ekran::Kutu(QStringLiteral("txtBabaAdi"), 16);
  txtAdres = ekran::Kutu(QStringLiteral("txtAdres"), 50);
  txtIlce = ekran::Kutu(QStringLiteral("txtIlce"), 15);
  cmbIl = new QComboBox;
  cmbIl->setObjectName(QStringLiteral("cmbIl"));
  txtPostaKod = ekran::Kutu(QStringLiteral("txtPostaKod"), 5);
  txtFaturaSeri = ekran::Kutu(QStringLiteral("txtFaturaSeri"), 2);
  txtSozlesmeSeri = ekran::Kutu(QStringLiteral("txtSozlesmeSeri"), 2);
  lblSoyadi = new QLabel;
  lblAdi = new QLabel;
  lblBabaAdi = new QLabel;
  cmdUpdate = new QPushButton(QStringLiteral("Kaydet"));
  cmdUpdate->setObjectName(QStringLiteral("cmdUpdate"));
  cmdCancel = new QPushButton(QStringLiteral("İptal"));
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  Command1 = new QPushButton(QStringLiteral("Çıkış"));
  Command1->setObjectName(QStringLiteral("Command1"));

  auto* izgara = new QGridLayout;
  int satir = 0;
  const auto ekle = [&](QWidget* etiket, QWidget* alan, QWidget* yan = nullptr) {
    izgara->addWidget(etiket, satir, 0);
    izgara->addWidget(alan, satir, 1);
    if (yan) izgara->addWidget(yan, satir, 2);
    ++satir;
  };
  auto* not_ = new QLabel(QStringLiteral("(Velmoraçılar için bu alan 11 olmalıdır.)"));
  txtKurulusKod->setMaximumWidth(50);
  ekle(new QLabel(QStringLiteral("Kuruluş Kodu:")), txtKurulusKod, not_);
  ekle(new QLabel(QStringLiteral("Vergi Kimlik No:")), txtVergiKimlikNo);
  ekle(new QLabel(QStringLiteral("Tür:")), cmbTur);
  ekle(lblSoyadi, txtSoyadi);
  ekle(lblAdi, txtAdi);
  ekle(lblBabaAdi, txtBabaAdi);
  izgara->addWidget(new QLabel(QStringLiteral("Adres:")), satir, 0);
  izgara->addWidget(txtAdres, satir++, 1, 1, 2);
  ekle(new QLabel(QStringLiteral("İlçe:")), txtIlce);
  ekle(new QLabel(QStringLiteral("İl:")), cmbIl);
  ekle(new QLabel(QStringLiteral("Posta Kodu:")), txtPostaKod);
  ekle(new QLabel(QStringLiteral("Fatura Seri:")), txtFaturaSeri);
  ekle(new QLabel(QStringLiteral("Sözleşme Seri:")), txtSozlesmeSeri);
  izgara->setColumnStretch(2, 1);

  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  dugmeler->addWidget(cmdUpdate);
  dugmeler->addWidget(cmdCancel);
  dugmeler->addWidget(Command1);
  auto* ana = new QVBoxLayout(this);
  ana->addLayout(izgara);
  ana->addStretch();
  ana->addLayout(dugmeler);

  connect(cmbTur, &QComboBox::currentIndexChanged, this, [this] { cmbTur_Click(); });
  connect(cmdUpdate, &QPushButton::clicked, this, [this] { cmdUpdate_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
  connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  cmbTur_Click();
}

void frmFirma::Form_Load() {
  ekran::FormOrtala(this, 5940, 7050, true);
  cmbTur->setCurrentIndex(1);
  db::Kayitlar iller =
      Genel::Baglanti.Sorgu(QStringLiteral("SELECT IlKod, Il FROM Il_Trafik_Kodu ORDER BY IlKod"));
  for (iller.MoveFirst(); !iller.Eof(); iller.MoveNext())
    cmbIl->addItem(iller.Metin(QStringLiteral("Il")), iller.Fields(QStringLiteral("IlKod")));
  FirmaAc();
  Goster();
}

void frmFirma::FirmaAc() {
  rsFirma = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Firma"));
  if (rsFirma.Eof()) {
    Genel::Baglanti.Calistir(QStringLiteral("INSERT INTO Firma(VergiKimlikNo) VALUES (NULL)"));
    rsFirma.Requery();
  }
}

void frmFirma::Goster() {
  if (rsFirma.Eof() || rsFirma.Bof()) return;
  txtKurulusKod->setText(Metin(rsFirma, "Kuruluskod"));
  txtVergiKimlikNo->setText(Metin(rsFirma, "VergiKimlikNo"));
  txtSoyadi->setText(Metin(rsFirma, "Soyadi"));
  txtAdi->setText(Metin(rsFirma, "Adi"));
  txtBabaAdi->setText(Metin(rsFirma, "BabaAdi"));
  txtAdres->setText(Metin(rsFirma, "Adres"));
  txtIlce->setText(Metin(rsFirma, "Ilce"));
  txtPostaKod->setText(Metin(rsFirma, "PostaKod"));
  txtFaturaSeri->setText(Metin(rsFirma, "FaturaSeri"));
  txtSozlesmeSeri->setText(Metin(rsFirma, "SozlesmeSeri"));
  const int tur = rsFirma.Fields(QStringLiteral("Tur")).toInt();
  cmbTur->setCurrentIndex(tur > 0 && tur <= cmbTur->count() ? tur - 1 : 1);
  const int il = rsFirma.Fields(QStringLiteral("IlKod")).toInt();
  int konum = il > 0 ? il - 1 : kVarsayilanIl;
  // A shorter list than the code needs falls back to its first entry.
  if (konum >= cmbIl->count()) konum = cmbIl->count() > kVarsayilanIl ? kVarsayilanIl : 0;
  cmbIl->setCurrentIndex(cmbIl->count() > 0 ? konum : -1);
}

void frmFirma::cmbTur_Click() {
  const bool kisi = cmbTur->currentIndex() == 0;
  lblSoyadi->setText(kisi ? QStringLiteral("Soyadı:") : QStringLiteral("Ünvan:"));
  lblAdi->setText(kisi ? QStringLiteral("Adı:") : QStringLiteral("Ünvan Devam 1:"));
  lblBabaAdi->setText(kisi ? QStringLiteral("Baba Adı:") : QStringLiteral("Ünvan Devam 2:"));
}

void frmFirma::cmdUpdate_Click() {
  // The table holds the one row of the office, so there is no condition.
  try {
    Genel::Baglanti.Calistir(
        QStringLiteral("UPDATE Firma SET Kuruluskod = ?, VergiKimlikNo = ?, Tur = ?, Soyadi = ?, "
                       "Adi = ?, BabaAdi = ?, Adres = ?, Ilce = ?, PostaKod = ?, FaturaSeri = ?, "
                       "SozlesmeSeri = ?, IlKod = ?"),
        {txtKurulusKod->text(), txtVergiKimlikNo->text(), cmbTur->currentIndex() + 1,
         txtSoyadi->text(), txtAdi->text(), txtBabaAdi->text(), txtAdres->text(), txtIlce->text(),
         txtPostaKod->text(), txtFaturaSeri->text(), txtSozlesmeSeri->text(),
         cmbIl->currentIndex() + 1});
  } catch (const db::Hata& h) {
    mesaj::Kritik(QStringLiteral("Firma bilgileri kaydedilemedi.\n") + h.metin(),
                  QStringLiteral("HATA"));
    return;
  }
  Genel::FaturaSeri = txtFaturaSeri->text();
  Genel::SozlesmeSeri = txtSozlesmeSeri->text();
  mesaj::Bilgi(QStringLiteral("Bilgiler Kaydedildi."), QStringLiteral("Bilgi"));
  Kapat();
}

void frmFirma::cmdCancel_Click() { Goster(); }

void frmFirma::Command1_Click() { Kapat(); }

namespace master {
void FirmaEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmFirma"), [] { return new frmFirma; });
}
}  // namespace master
