#include "master/frmDovizTanim.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"

namespace {

const QString kUyari = QStringLiteral("UYARI");

// A stored rate as the box shows it before it is left: the plain number with
// the regional decimal sign, so that KurFormat reads it back unchanged.
QString KurMetni(const QVariant& v) {
  if (db::NullMu(v)) return QString();
  QString s = QString::number(v.toDouble(), 'g', 15);
  s.replace(QLatin1Char('.'), Genel::Bolge().ondalik);
  return s;
}

}  // namespace

frmDovizTanim::frmDovizTanim() {
  setWindowTitle(QStringLiteral("Döviz Kur Bilgisi Giriş Ekranı"));
  DataGrid1 = new ekran::Izgara;
  DataGrid1->setObjectName(QStringLiteral("DataGrid1"));
  txtTarih = ekran::Kutu(QStringLiteral("txtTarih"));
  ekran::SaltOkunur(txtTarih, true);
  cmbDoviz = new QComboBox;
  cmbDoviz->setObjectName(QStringLiteral("cmbDoviz"));
  // Locked: the currency belongs to the row chosen in the grid.
  cmbDoviz->setEnabled(false);
  txtKur = ekran::Kutu(QStringLiteral("txtKur"));
  txtCaprazKur = ekran::Kutu(QStringLiteral("txtCaprazKur"));
  ekran::SayiTusuKur(txtKur);
  ekran::SayiTusuKur(txtCaprazKur);
  cmdSave = new QPushButton(QStringLiteral("Güncelle"));
  cmdSave->setObjectName(QStringLiteral("cmdSave"));
  cmdExit = new QPushButton(QStringLiteral("Çıkış"));
  cmdExit->setObjectName(QStringLiteral("cmdExit"));
  ekran::KontrolTetiklemez(cmdExit);

  auto* alanlar = new QGridLayout;
  alanlar->addWidget(new QLabel(QStringLiteral("Tarih")), 0, 0);
  alanlar->addWidget(txtTarih, 0, 1);
  alanlar->addWidget(new QLabel(QStringLiteral("Döviz")), 0, 2);
  alanlar->addWidget(cmbDoviz, 0, 3);
  alanlar->addWidget(new QLabel(QStringLiteral("Kur")), 1, 0);
  alanlar->addWidget(txtKur, 1, 1);
  alanlar->addWidget(new QLabel(QStringLiteral("Çapraz Kur")), 1, 2);
  alanlar->addWidget(txtCaprazKur, 1, 3);
  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  dugmeler->addWidget(cmdSave);
  dugmeler->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addWidget(DataGrid1, 1);
  ana->addLayout(alanlar);
  ana->addLayout(dugmeler);

  ekran::AyrilirkenKontrol(txtKur, [this] { return txtKur_Validate(); });
  ekran::AyrilirkenKontrol(txtCaprazKur, [this] { return txtCaprazKur_Validate(); });
  connect(DataGrid1, &ekran::Izgara::CiftTiklandi, this, [this] { DataGrid1_DblClick(); });
  connect(cmdSave, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { cmdSave_Click(); }); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
}

frmDovizTanim::~frmDovizTanim() { DataGrid1->Bagla(nullptr); }

void frmDovizTanim::Form_Load() {
  ekran::FormOrtala(this, 5625, 8340);
  db::Kayitlar kodlar = Genel::Baglanti.Sorgu(QStringLiteral("SELECT KOD FROM DOVIZKOD"));
  for (kodlar.MoveFirst(); !kodlar.Eof(); kodlar.MoveNext())
    cmbDoviz->addItem(kodlar.Metin(QStringLiteral("KOD")));
  cmbDoviz->setCurrentIndex(-1);
  master::EksikKurlariEkle();
  rs = Genel::Baglanti.Sorgu(QStringLiteral("SELECT Tarih, Doviz, Kur, CaprazKur FROM Kur"));
  DataGrid1->Model()->TarihBicimi(QStringLiteral("Tarih"));
  DataGrid1->Model()->SayiBicimi(QStringLiteral("Kur"), 5);
  DataGrid1->Model()->SayiBicimi(QStringLiteral("CaprazKur"), 5);
  DataGrid1->Bagla(&rs);
}

void frmDovizTanim::Form_Activate() {
  if (rs.RecordCount() > 0) return;
  mesaj::Bilgi(QStringLiteral("Girilmesi Gereken Kur Bilgisi Yoktur!"), kUyari);
  DataGrid1->Bagla(nullptr);
  rs = db::Kayitlar();
  Kapat();
}

void frmDovizTanim::DataGrid1_DblClick() {
  if (!rs.SatirVar()) return;
  txtTarih->setText(Genel::TarihEkran(rs.Fields(QStringLiteral("Tarih"))));
  cmbDoviz->setCurrentIndex(cmbDoviz->findText(rs.Metin(QStringLiteral("Doviz"))));
  txtKur->setText(KurMetni(rs.Fields(QStringLiteral("Kur"))));
  txtCaprazKur->setText(KurMetni(rs.Fields(QStringLiteral("CaprazKur"))));
  cmdSave->setVisible(true);
}

bool frmDovizTanim::KurAlani(QLineEdit* kutu) {
  const QString metin = kutu->text().trimmed();
  if (metin.isEmpty()) return true;
  if (!Genel::SayiMi(metin)) {
    mesaj::Kritik(QStringLiteral("Geçerli bir kur giriniz."), QStringLiteral("HATA"));
    return false;
  }
  const QString yeni = Genel::KurFormat(metin);
  if (yeni != kutu->text()) kutu->setText(yeni);
  return true;
}

bool frmDovizTanim::txtKur_Validate() { return KurAlani(txtKur); }

bool frmDovizTanim::txtCaprazKur_Validate() { return KurAlani(txtCaprazKur); }

void frmDovizTanim::cmdSave_Click() {
  if (txtKur->text().trimmed().isEmpty()) {
    mesaj::Bilgi(QStringLiteral("Lütfen Kur Bilgisini Girin"), kUyari);
    return;
  }
  // Nothing chosen: there is no row the rate could belong to.
  const QVariant gun = Genel::TarihSql(txtTarih->text());
  if (db::NullMu(gun) || cmbDoviz->currentIndex() < 0) {
    mesaj::Bilgi(QStringLiteral("Lütfen listeden bir kur satırı seçiniz."), kUyari);
    return;
  }
  double kur = 0, capraz = 0;
  const bool caprazVar = !txtCaprazKur->text().trimmed().isEmpty();
  if (!Genel::SayiMi(txtKur->text(), &kur) ||
      (caprazVar && !Genel::SayiMi(txtCaprazKur->text(), &capraz))) {
    mesaj::Kritik(QStringLiteral("Geçerli bir kur giriniz."), QStringLiteral("HATA"));
    return;
  }
  // Every row of the day and currency: the table may hold the pair twice.
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE Kur SET Kur = ?, CaprazKur = ? WHERE Tarih = ? AND Doviz = ?"),
      {kur, caprazVar ? QVariant(capraz) : db::Null(), gun, cmbDoviz->currentText()});
  bosalt();
  rs.Requery();
  DataGrid1->Model()->Yenile();
}

void frmDovizTanim::bosalt() {
  cmbDoviz->setCurrentIndex(-1);
  txtCaprazKur->clear();
  txtKur->clear();
  txtTarih->clear();
  cmdSave->setVisible(false);
}

void frmDovizTanim::cmdExit_Click() { Kapat(); }

namespace master {

int EksikKurlariEkle() {
  // One row per day and currency, even when several new papers or contracts
  // share it; a bounced paper has no day and needs no rate.
  const int satir = Genel::Baglanti.Calistir(QStringLiteral(
      "INSERT INTO Kur (Tarih, Doviz, Kur, CaprazKur) "
      "SELECT DISTINCT D.Odenmesi, D.Doviz, 0, 0 FROM SozlesmeDetay D "
      "WHERE D.Doviz <> 'TRL' AND D.Odenmesi IS NOT NULL "
      "AND NOT EXISTS (SELECT 1 FROM Kur K WHERE K.Tarih = D.Odenmesi AND K.Doviz = D.Doviz)"));
  return satir + Genel::Baglanti.Calistir(
                     QStringLiteral("INSERT INTO Kur (Tarih, Doviz, Kur, CaprazKur) "
                                    "SELECT DISTINCT S.Tarih, S.Doviz, 0, 0 FROM Sozlesme S "
                                    "WHERE S.Doviz <> 'TRL' AND S.Tarih IS NOT NULL "
                                    "AND NOT EXISTS (SELECT 1 FROM Kur K WHERE K.Tarih = S.Tarih "
                                    "AND K.Doviz = S.Doviz)"));
}

void DovizEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmDovizTanim"), [] { return new frmDovizTanim; });
}

}  // namespace master
