#include "master/frmBul.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "master/frmMusteri.h"

namespace {

const char* const kAdSoyad =
    "SELECT MusteriNo, Bulunacak AS AdSoyad FROM MusteriQry "
    "WHERE Bulunacak LIKE ? ESCAPE '\\' ORDER BY Bulunacak COLLATE TURKCE";

// The address, the district and the province are searched at once.
const char* const kAdres =
    "SELECT M.MusteriNo, Bulunacak AS AdSoyad, Adres, Ilce, IL_Ad "
    "FROM (Musteri M INNER JOIN MusteriQry Q ON M.MusteriNo = Q.MusteriNo) "
    "WHERE (Adres LIKE ? ESCAPE '\\' OR Ilce LIKE ? ESCAPE '\\' OR Il_Ad LIKE ? ESCAPE '\\') "
    "ORDER BY Bulunacak COLLATE TURKCE";

}  // namespace

frmBul::frmBul(frmMusteri* musteri, QWidget* ust) : QDialog(ust), musteri_(musteri) {
  setWindowTitle(QStringLiteral("Müşteri Bul"));
  setObjectName(QStringLiteral("frmBul"));

  cmbKriter = new QComboBox;
  cmbKriter->setObjectName(QStringLiteral("cmbKriter"));
  cmbKriter->addItems({QStringLiteral("Ad Soyad"), QStringLiteral("Adres")});
  cmbKriter->setCurrentIndex(0);
  txtAranacak = ekran::Kutu(QStringLiteral("txtAranacak"), 0, false);
  ekran::BuyukHarfKur(txtAranacak);
  chkAraTip = new QCheckBox(QStringLiteral("İçinde .... Geçen Kayıtları Listele"));
  chkAraTip->setObjectName(QStringLiteral("chkAraTip"));
  cmdAra = new QPushButton(QStringLiteral("Ara"));
  cmdAra->setObjectName(QStringLiteral("cmdAra"));
  lblcount = new QLabel;
  lblcount->setObjectName(QStringLiteral("lblcount"));
  lblcount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grdSonuc = new ekran::Izgara;
  grdSonuc->setObjectName(QStringLiteral("grdSonuc"));
  grdSonuc->horizontalHeader()->setStretchLastSection(true);
  // The empty place of the hidden grid keeps the dialog's shape.
  QSizePolicy yer = grdSonuc->sizePolicy();
  yer.setRetainSizeWhenHidden(true);
  grdSonuc->setSizePolicy(yer);
  grdSonuc->hide();
  cmdSec = new QPushButton(QStringLiteral("Seç"));
  cmdSec->setObjectName(QStringLiteral("cmdSec"));
  cmdVazgec = new QPushButton(QStringLiteral("Vazgeç"));
  cmdVazgec->setObjectName(QStringLiteral("cmdVazgec"));
  for (QPushButton* d : {cmdAra, cmdSec, cmdVazgec}) d->setAutoDefault(false);

  auto* ust1 = new QHBoxLayout;
  ust1->addWidget(new QLabel(QStringLiteral("Arama Kriteri ")));
  ust1->addWidget(cmbKriter);
  ust1->addWidget(txtAranacak, 1);
  ust1->addWidget(cmdAra);
  auto* ust2 = new QHBoxLayout;
  ust2->addWidget(chkAraTip);
  ust2->addStretch();
  ust2->addWidget(lblcount);
  auto* alt = new QHBoxLayout;
  alt->addStretch();
  alt->addWidget(cmdSec);
  alt->addWidget(cmdVazgec);
  auto* duzen = new QVBoxLayout(this);
  duzen->addLayout(ust1);
  duzen->addLayout(ust2);
  duzen->addWidget(grdSonuc, 1);
  duzen->addLayout(alt);

  ekran::EnterKur(txtAranacak, [this] { cmdAra_Click(); });
  ekran::EnterKur(grdSonuc, [this] { cmdSec_Click(); });
  connect(cmdAra, &QPushButton::clicked, this, [this] { cmdAra_Click(); });
  connect(cmdSec, &QPushButton::clicked, this, [this] { cmdSec_Click(); });
  connect(cmdVazgec, &QPushButton::clicked, this, [this] { cmdVazgec_Click(); });
  connect(grdSonuc, &ekran::Izgara::CiftTiklandi, this, [this] { grdSonuc_DblClick(); });

  resize(ekran::Twip(11400), ekran::Twip(6600));
}

// The grid outlives the members: it must not read the hits while it goes.
frmBul::~frmBul() { grdSonuc->Bagla(nullptr); }

QString frmBul::Desen(const QString& aranan, bool icinde) {
  QString d = aranan;
  d.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
  d.replace(QLatin1Char('%'), QStringLiteral("\\%"));
  d.replace(QLatin1Char('_'), QStringLiteral("\\_"));
  return (icinde ? QStringLiteral("%") : QString()) + d + QLatin1Char('%');
}

void frmBul::cmdAra_Click() {
  const bool adres = cmbKriter->currentIndex() == 1;
  const QString desen = Desen(txtAranacak->text().trimmed(), chkAraTip->isChecked());
  grdSonuc->Bagla(nullptr);
  rsBulunan = adres ? Genel::Baglanti.Sorgu(QString::fromLatin1(kAdres), {desen, desen, desen})
                    : Genel::Baglanti.Sorgu(QString::fromLatin1(kAdSoyad), {desen});
  aramaVar_ = true;
  const int adet = rsBulunan.RecordCount();
  // "#,###": nothing at all for none.
  lblcount->setText((adet ? Genel::SayiYaz(adet, 0) : QString()) +
                    QStringLiteral(" Adet Kayıt Listelendi"));
  grdSonuc->Bagla(&rsBulunan);
  SutunlariKur(adres);
  grdSonuc->show();
}

void frmBul::SutunlariKur(bool adres) {
  ekran::IzgaraModeli* m = grdSonuc->Model();
  m->Gizle(QStringLiteral("MusteriNo"));
  m->Baslik(QStringLiteral("AdSoyad"), QStringLiteral("Ad Soyad"));
  m->Baslik(QStringLiteral("Adres"), QStringLiteral("Adres"));
  m->Baslik(QStringLiteral("Ilce"), QStringLiteral("İlçe"));
  m->Baslik(QStringLiteral("IL_Ad"), QStringLiteral("Şehir"));
  m->Uygula(grdSonuc);
  // Fixed widths: measuring thousands of rows would cost more than the search.
  const int harf = fontMetrics().averageCharWidth();
  if (adres) {
    grdSonuc->setColumnWidth(1, harf * 30);
    grdSonuc->setColumnWidth(2, harf * 42);
    grdSonuc->setColumnWidth(3, harf * 14);
  }
}

void frmBul::cmdSec_Click() {
  if (aramaVar_ && rsBulunan.SatirVar() && musteri_) {
    const qint32 no = qint32(rsBulunan.Fields(QStringLiteral("MusteriNo")).toLongLong());
    musteri_->KisiBul(no);
  }
  close();
}

void frmBul::cmdVazgec_Click() { close(); }

void frmBul::grdSonuc_DblClick() { cmdSec_Click(); }
