#include "contract/frmSipYazTanim.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "contract/SozlesmeBaski.h"
#include "contract/frmSozles.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "core/Onizleme.h"

namespace {

const QString kSecin = QStringLiteral("Seçin");

QPushButton* Dugme(const char* ad, const QString& yazi) {
  auto* d = new QPushButton(yazi);
  d->setObjectName(QString::fromLatin1(ad));
  d->setAutoDefault(false);
  return d;
}

QComboBox* Liste(const char* ad, const QStringList& ogeler) {
  auto* c = new QComboBox;
  c->setObjectName(QString::fromLatin1(ad));
  c->addItems(ogeler);
  return c;
}

// BOY and DECIMAL as typed: a whole number as such, nothing as Null, any
// other text as it stands (numbers are not checked on this screen; the
// print reads such a text by its leading number).
QVariant Deger(const QString& metin) {
  const QString t = metin.trimmed();
  if (t.isEmpty()) return db::Null();
  bool sayi = false;
  const qint64 n = t.toLongLong(&sayi);
  return sayi ? QVariant(n) : QVariant(metin);
}

// What a grid cell of the row shows in a box: "" for Null.
QString Metin(const db::Kayitlar& rs, const char* alan) {
  return rs.Metin(QString::fromLatin1(alan));
}

}  // namespace

frmSipYazTanim::frmSipYazTanim() {
  setWindowTitle(QStringLiteral("Sipariş Yazıcı Tanımlama Ekranı"));
  Kur();
}

frmSipYazTanim::~frmSipYazTanim() { DataGrid1->Bagla(nullptr); }

void frmSipYazTanim::Kur() {
  DataGrid1 = new ekran::Izgara;
  DataGrid1->setObjectName(QStringLiteral("DataGrid1"));
  txtSira = ekran::Kutu(QStringLiteral("txtSira"), 4);
  txtSutun = ekran::Kutu(QStringLiteral("txtSutun"), 4);
  cmbTip = Liste("cmbTip", {kSecin, QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                            QStringLiteral("D"), QStringLiteral("N"), QStringLiteral("P"),
                            QStringLiteral("S"), QStringLiteral("Y"), QStringLiteral("T")});
  cmbAlan = Liste("cmbAlan", {kSecin,
                              QStringLiteral("Adres"),
                              QStringLiteral("AdSoyad"),
                              QStringLiteral("BMVergisi"),
                              QStringLiteral("FaizOran"),
                              QStringLiteral("FaizTutar"),
                              QStringLiteral("GecikmeOran"),
                              QStringLiteral("Gun"),
                              QStringLiteral("Il_Ad"),
                              QStringLiteral("Ilce"),
                              QStringLiteral("IskontoOran"),
                              QStringLiteral("Odenecek"),
                              QStringLiteral("Odenecek2"),
                              QStringLiteral("PostaKod"),
                              QStringLiteral("SozlesmeNo"),
                              QStringLiteral("SozlesmeSeri"),
                              QStringLiteral("Tarih"),
                              QStringLiteral("TarihAy"),
                              QStringLiteral("TarihGun"),
                              QStringLiteral("TarihYil"),
                              QStringLiteral("Tutar"),
                              QStringLiteral("VergiDairesi"),
                              QStringLiteral("VergiKimlikNo"),
                              QStringLiteral("Yaziyla"),
                              QStringLiteral("DamgaVergi")});
  txtDetay = ekran::Kutu(QStringLiteral("txtDetay"));
  txtDetay->setPlaceholderText(QStringLiteral("metin ya da sütun listesi (K25,B40,...)"));
  cmbFormat = Liste("cmbFormat", {QString(), QStringLiteral("NBR"), QStringLiteral("NUMR"),
                                  QStringLiteral("TURKCE")});
  txtBoy = ekran::Kutu(QStringLiteral("txtBoy"), 3);
  txtDecimal = ekran::Kutu(QStringLiteral("txtDecimal"), 1);
  for (QLineEdit* k : {txtSira, txtSutun, txtBoy, txtDecimal}) k->setMaximumWidth(60);
  cmdEkle = Dugme("cmdEkle", QStringLiteral("Ekle"));
  cmdVazgec = Dugme("cmdVazgec", QStringLiteral("Vazgeç"));
  cmdsil = Dugme("cmdsil", QStringLiteral("Sil"));
  cmdCikis = Dugme("cmdCikis", QStringLiteral("Çıkış"));
  cmdOnizleme = Dugme("cmdOnizleme", QStringLiteral("Önizleme"));

  auto* alanlar = new QGridLayout;
  alanlar->addWidget(new QLabel(QStringLiteral("Sıra")), 0, 0);
  alanlar->addWidget(txtSira, 1, 0);
  alanlar->addWidget(new QLabel(QStringLiteral("Sütun")), 0, 1);
  alanlar->addWidget(txtSutun, 1, 1);
  alanlar->addWidget(new QLabel(QStringLiteral("Tip")), 0, 2);
  alanlar->addWidget(cmbTip, 1, 2);
  lblAlan = new QLabel(QStringLiteral("Alan"));
  alanlar->addWidget(lblAlan, 0, 3);
  alanlar->addWidget(cmbAlan, 1, 3);
  alanlar->addWidget(txtDetay, 1, 3);
  lblFormat = new QLabel(QStringLiteral("Format"));
  alanlar->addWidget(lblFormat, 0, 4);
  alanlar->addWidget(cmbFormat, 1, 4);
  lblBoy = new QLabel(QStringLiteral("Boy"));
  alanlar->addWidget(lblBoy, 0, 5);
  alanlar->addWidget(txtBoy, 1, 5);
  lblDecimal = new QLabel(QStringLiteral("Decimal"));
  alanlar->addWidget(lblDecimal, 0, 6);
  alanlar->addWidget(txtDecimal, 1, 6);
  alanlar->setColumnStretch(3, 1);
  for (QWidget* w :
       std::initializer_list<QWidget*>{cmbAlan, txtDetay, cmbFormat, txtBoy, txtDecimal, lblAlan,
                                       lblFormat, lblBoy, lblDecimal}) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
  }
  auto* komutlar = new QHBoxLayout;
  for (QPushButton* d : {cmdEkle, cmdVazgec, cmdsil}) komutlar->addWidget(d);
  komutlar->addStretch();
  komutlar->addWidget(cmdOnizleme);
  komutlar->addWidget(cmdCikis);
  auto* duzen = new QVBoxLayout(this);
  duzen->addWidget(DataGrid1, 1);
  duzen->addLayout(alanlar);
  duzen->addLayout(komutlar);

  ekran::IzgaraModeli* m = DataGrid1->Model();
  m->Gizle(QStringLiteral("ID"));

  connect(cmbTip, &QComboBox::activated, this, [this] { cmbTip_Click(); });
  connect(DataGrid1, &ekran::Izgara::CiftTiklandi, this,
          [this] { ekran::Korumali([this] { DataGrid1_DblClick(); }); });
  const auto bagla = [this](QPushButton* d, void (frmSipYazTanim::*f)()) {
    connect(d, &QPushButton::clicked, this,
            [this, f] { ekran::Korumali([this, f] { (this->*f)(); }); });
  };
  bagla(cmdEkle, &frmSipYazTanim::cmdEkle_Click);
  bagla(cmdVazgec, &frmSipYazTanim::cmdVazgec_Click);
  bagla(cmdsil, &frmSipYazTanim::cmdsil_Click);
  bagla(cmdCikis, &frmSipYazTanim::cmdCikis_Click);
  bagla(cmdOnizleme, &frmSipYazTanim::cmdOnizleme_Click);
}

void frmSipYazTanim::Form_Load() {
  ekran::FormOrtala(this, 5670, 7980);
  Oku();
  cmdsil->setEnabled(false);
  bosalt();
}

void frmSipYazTanim::Form_Unload() {
  DataGrid1->Bagla(nullptr);
  rs = db::Kayitlar();
}

void frmSipYazTanim::Oku() {
  DataGrid1->Bagla(nullptr);
  rs = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM SozlesmeTanim ORDER BY SIRA, SUTUN"));
  DataGrid1->Bagla(&rs);
}

void frmSipYazTanim::bosalt() {
  txtBoy->setText(QStringLiteral("0"));
  txtDecimal->setText(QStringLiteral("0"));
  txtSira->clear();
  txtSutun->clear();
  txtDetay->clear();
  for (QComboBox* c : {cmbTip, cmbAlan, cmbFormat}) c->setCurrentIndex(0);
  Gorunum();
}

void frmSipYazTanim::Gorunum() {
  const QString t = cmbTip->currentText();
  const bool secin = t == kSecin;
  const bool alan = secin || t == QLatin1String("B") || t == QLatin1String("N");
  const bool detay = t == QLatin1String("D") || t == QLatin1String("T");
  const bool bicim = alan;
  const bool boy = secin || t == QLatin1String("A") || t == QLatin1String("C") ||
                   t == QLatin1String("P") || t == QLatin1String("S") || t == QLatin1String("D");
  const bool ondalik = secin || t == QLatin1String("D") || t == QLatin1String("N");
  cmbAlan->setVisible(alan);
  lblAlan->setVisible(alan);
  txtDetay->setVisible(detay);
  cmbFormat->setVisible(bicim);
  lblFormat->setVisible(bicim);
  txtBoy->setVisible(boy);
  lblBoy->setVisible(boy);
  txtDecimal->setVisible(ondalik);
  lblDecimal->setVisible(ondalik);
  // The lines a block takes up may reach two digits.
  ekran::SinirKur(txtDecimal, t == QLatin1String("D") ? 2 : 1);
}

void frmSipYazTanim::cmbTip_Click() { Gorunum(); }

void frmSipYazTanim::DataGrid1_DblClick() {
  if (!rs.SatirVar()) return;
  txtSira->setText(Metin(rs, "SIRA"));
  txtSutun->setText(Metin(rs, "SUTUN"));
  txtBoy->setText(Metin(rs, "BOY"));
  txtDecimal->setText(Metin(rs, "DECIMAL"));
  const QString alan = Metin(rs, "ALAN");
  if (alan.isEmpty()) {
    cmbAlan->setCurrentIndex(0);
  } else if (const int i = cmbAlan->findText(alan); i >= 0) {
    cmbAlan->setCurrentIndex(i);
  }
  if (const int i = cmbTip->findText(Metin(rs, "TIP")); i >= 0) cmbTip->setCurrentIndex(i);
  const QString bicim = Metin(rs, "FORMAT");
  const int b = cmbFormat->findText(bicim);
  cmbFormat->setCurrentIndex(bicim.isEmpty() || b < 0 ? 0 : b);
  txtDetay->setText(alan);
  ID = rs.Fields(QStringLiteral("ID")).toLongLong();
  cmdEkle->setText(QStringLiteral("Kaydet"));
  cmdsil->setEnabled(true);
  Gorunum();
}

bool frmSipYazTanim::SayiKontrol() {
  for (QLineEdit* k : {txtSira, txtSutun}) {
    bool sayi = false;
    k->text().trimmed().toInt(&sayi);
    if (sayi) continue;
    mesaj::Uyari((k == txtSira ? QStringLiteral("Sıra") : QStringLiteral("Sütun")) +
                     QStringLiteral(" bir tam sayı olmalıdır: \"") + k->text() + QLatin1Char('"'),
                 QStringLiteral("Giriş Hatası"));
    k->setFocus();
    k->selectAll();
    return false;
  }
  return true;
}

void frmSipYazTanim::cmdEkle_Click() {
  const bool yeni = cmdEkle->text() == QLatin1String("Ekle");
  if (yeni &&
      (txtSira->text().isEmpty() || txtSutun->text().isEmpty() || cmbTip->currentText() == kSecin))
    return;
  if (!SayiKontrol()) return;
  QStringList sutunlar = {QStringLiteral("SIRA"), QStringLiteral("SUTUN"), QStringLiteral("TIP")};
  QVariantList degerler = {txtSira->text().trimmed().toInt(), txtSutun->text().trimmed().toInt(),
                           cmbTip->currentText()};
  const auto ekle = [&](const char* sutun, const QVariant& deger) {
    sutunlar << QString::fromLatin1(sutun);
    degerler << deger;
  };
  if (yeni) {
    if (!cmbAlan->isHidden() && cmbAlan->currentIndex() > 0) ekle("ALAN", cmbAlan->currentText());
    if (!txtDetay->isHidden()) ekle("ALAN", txtDetay->text());
    if (!txtBoy->isHidden()) ekle("BOY", Deger(txtBoy->text()));
    if (!txtDecimal->isHidden()) ekle("\"DECIMAL\"", Deger(txtDecimal->text()));
    if (!cmbFormat->isHidden() && cmbFormat->currentIndex() > 0)
      ekle("FORMAT", cmbFormat->currentText());
    const QVariant son = Genel::Baglanti.Deger(QStringLiteral("SELECT max(ID) FROM SozlesmeTanim"));
    const qint64 id = db::NullMu(son) ? 1 : son.toLongLong() + 1;
    sutunlar.prepend(QStringLiteral("ID"));
    degerler.prepend(id);
    QStringList yerler;
    for (int i = 0; i < sutunlar.size(); ++i) yerler << QStringLiteral("?");
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO SozlesmeTanim(%1) VALUES (%2)")
            .arg(sutunlar.join(QStringLiteral(", ")), yerler.join(QStringLiteral(", "))),
        degerler);
  } else {
    // Columns of fields not on show keep what they hold.
    if (!cmbAlan->isHidden()) ekle("ALAN", cmbAlan->currentText());
    if (!txtDetay->isHidden()) ekle("ALAN", txtDetay->text());
    if (!txtBoy->isHidden()) ekle("BOY", Deger(txtBoy->text()));
    if (!txtDecimal->isHidden()) ekle("\"DECIMAL\"", Deger(txtDecimal->text()));
    if (!cmbFormat->isHidden()) ekle("FORMAT", cmbFormat->currentText());
    QStringList atamalar;
    for (const QString& s : sutunlar) atamalar << s + QStringLiteral(" = ?");
    degerler << ID;
    Genel::Baglanti.Calistir(QStringLiteral("UPDATE SozlesmeTanim SET %1 WHERE ID = ?")
                                 .arg(atamalar.join(QStringLiteral(", "))),
                             degerler);
  }
  Oku();
  cmdsil->setEnabled(false);
  cmdEkle->setText(QStringLiteral("Ekle"));
  ID = 0;
  bosalt();
}

void frmSipYazTanim::cmdsil_Click() {
  if (!mesaj::EvetMi(QStringLiteral("Silmek istediğinizden Emin misiniz?"),
                     QStringLiteral("SİLME ONAYI")))
    return;
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM SozlesmeTanim WHERE ID = ?"), {ID});
  Oku();
  cmdVazgec_Click();
}

void frmSipYazTanim::cmdVazgec_Click() {
  ID = 0;
  cmdsil->setEnabled(false);
  cmdEkle->setText(QStringLiteral("Ekle"));
  bosalt();
}

void frmSipYazTanim::cmdCikis_Click() { Kapat(); }

void frmSipYazTanim::cmdOnizleme_Click() {
  qint32 id = 0;
  if (auto* s = qobject_cast<frmSozles*>(ekran::Acik(QStringLiteral("frmSozles"))))
    id = s->SozlesmeID;
  if (id == 0) id = sozlesmebaski::SonFaturaliSozlesme(Genel::Baglanti);
  const std::optional<sozlesmebaski::Baski> b = sozlesmebaski::OnizlemeHazirla(Genel::Baglanti, id);
  if (!b) {
    mesaj::Bilgi(QStringLiteral("Önizlenecek sözleşme yok. Önce bir sözleşme açınız."),
                 QStringLiteral("Önizleme"));
    return;
  }
  onizleme::Goster(sozlesmebaski::Akis(*b, Genel::SahipAdi, sozlesmebaski::Ayar::Genelden()),
                   QStringLiteral("Sözleşme ") + b->satir.Metin(QStringLiteral("SozlesmeSeri")) +
                       QLatin1Char(' ') + b->satir.Metin(QStringLiteral("SozlesmeNo")),
                   this);
}

namespace contract {

void SablonEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmSipYazTanim"), [] { return new frmSipYazTanim; });
}

}  // namespace contract
