#include "contract/frmNoDegis.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <optional>

#include "contract/frmSozBul.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"

namespace {

// The number in the box, or nothing after telling the clerk why it isn't one.
std::optional<qint32> Numara(QLineEdit* kutu, const QString& hangisi) {
  QString neden;
  const std::optional<qint32> no = contract::SozlesmeNoOku(kutu->text(), &neden);
  if (!no) {
    mesaj::Kritik(hangisi + QStringLiteral(" Sözleşme Numarası ") + neden, QStringLiteral("HATA"));
    kutu->setFocus();
    ekran::MetinSec(kutu);
  }
  return no;
}

bool SozlesmeVar(const QString& seri, qint32 no) {
  return !db::NullMu(Genel::Baglanti.Deger(
      QStringLiteral("SELECT 1 FROM Sozlesme WHERE SozlesmeSeri = ? AND SozlesmeNo = ? LIMIT 1"),
      {seri, no}));
}

}  // namespace

frmNoDegis::frmNoDegis() {
  setWindowTitle(QStringLiteral("Sözleşme Numarası Değişikliği"));
  txtEskiSeri = ekran::Kutu(QStringLiteral("txtEskiSeri"), 2);
  txtEski = ekran::Kutu(QStringLiteral("txtEski"), 10);
  txtYeniSeri = ekran::Kutu(QStringLiteral("txtYeniSeri"), 2);
  txtYeni = ekran::Kutu(QStringLiteral("txtYeni"), 10);
  for (QLineEdit* seri : {txtEskiSeri, txtYeniSeri}) {
    seri->setText(Genel::SozlesmeSeri);
    seri->setFixedWidth(40);
  }
  cmdIslem = new QPushButton(QStringLiteral("Değiştir"));
  cmdIslem->setObjectName(QStringLiteral("cmdIslem"));
  cmdExit = new QPushButton(QStringLiteral("&Çıkış"));
  cmdExit->setObjectName(QStringLiteral("cmdExit"));

  auto* izgara = new QGridLayout;
  izgara->addWidget(new QLabel(QStringLiteral("Eski Sözleşme Numarası:")), 0, 0);
  izgara->addWidget(txtEskiSeri, 0, 1);
  izgara->addWidget(txtEski, 0, 2);
  izgara->addWidget(new QLabel(QStringLiteral("Yeni Sözleşme Numarası:")), 1, 0);
  izgara->addWidget(txtYeniSeri, 1, 1);
  izgara->addWidget(txtYeni, 1, 2);
  izgara->setColumnStretch(2, 1);
  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  dugmeler->addWidget(cmdIslem);
  dugmeler->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addLayout(izgara);
  ana->addStretch();
  ana->addLayout(dugmeler);

  connect(cmdIslem, &QPushButton::clicked, this, [this] { cmdIslem_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
}

void frmNoDegis::Form_Load() {
  ekran::FormOrtala(this, 1800, 5400, true);
  txtEski->setFocus();
}

void frmNoDegis::cmdIslem_Click() {
  const std::optional<qint32> eski = Numara(txtEski, QStringLiteral("Eski"));
  if (!eski) return;
  const std::optional<qint32> yeni = Numara(txtYeni, QStringLiteral("Yeni"));
  if (!yeni) return;
  const QString eskiSeri = txtEskiSeri->text(), yeniSeri = txtYeniSeri->text();

  // The checks and the three updates share one transaction; the messages wait
  // until it is over, so that no box is open while the file is locked.
  enum class Sonuc { Tamam, EskiYok, YeniVar } sonuc = Sonuc::Tamam;
  try {
    db::Islem islem(Genel::Baglanti);
    const bool eskiVar = SozlesmeVar(eskiSeri, *eski);
    const bool yeniVar = SozlesmeVar(yeniSeri, *yeni);
    if (!eskiVar) {
      sonuc = Sonuc::EskiYok;
    } else if (yeniVar) {
      sonuc = Sonuc::YeniVar;
    } else {
      for (const char* tablo : {"Sozlesme", "SozlesmeDetay", "Fatura"})
        Genel::Baglanti.Calistir(QStringLiteral("UPDATE %1 SET SozlesmeSeri = ?, SozlesmeNo = ? "
                                                "WHERE SozlesmeSeri = ? AND SozlesmeNo = ?")
                                     .arg(QLatin1String(tablo)),
                                 {yeniSeri, *yeni, eskiSeri, *eski});
      islem.Onayla();
    }
  } catch (const db::Hata& h) {
    mesaj::Kritik(QStringLiteral("Numara Değiştirilemedi, Hiçbir Kayıt Değişmedi") +
                      QLatin1Char('\n') + h.metin(),
                  QStringLiteral("HATA"));
    return;
  }
  switch (sonuc) {
    case Sonuc::EskiYok:
      mesaj::Kritik(QStringLiteral("Eski Sözleşme Mevcut Değil"), QStringLiteral("HATA"));
      break;
    case Sonuc::YeniVar:
      mesaj::Kritik(QStringLiteral("Yeni Sözleşme Numarası Kullanımda"), QStringLiteral("HATA"));
      break;
    case Sonuc::Tamam:
      mesaj::Bilgi(QStringLiteral("İşlem Başarıyla Sonuçlandı"), QStringLiteral("Mesaj"));
      break;
  }
}

void frmNoDegis::cmdExit_Click() { Kapat(); }

namespace contract {
void NoDegisEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmNoDegis"), [] { return new frmNoDegis; });
}
}  // namespace contract
