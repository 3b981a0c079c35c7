#include "contract/frmSozBul.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <limits>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "db/Kayitlar.h"

qint64 BulunanSozlesmeID = 0;

namespace contract {

std::optional<qint32> SozlesmeNoOku(const QString& metin, QString* neden) {
  const auto hata = [&](const QString& n) -> std::optional<qint32> {
    if (neden) *neden = n;
    return std::nullopt;
  };
  const QString t = metin.trimmed();
  if (t.isEmpty()) return hata(QStringLiteral("Girilmemiş"));
  qsizetype i = (t[0] == QLatin1Char('+') || t[0] == QLatin1Char('-')) ? 1 : 0;
  if (i == t.size()) return hata(QStringLiteral("Sayı Değil"));
  for (qsizetype j = i; j < t.size(); ++j)
    if (t[j] < QLatin1Char('0') || t[j] > QLatin1Char('9'))
      return hata(QStringLiteral("Sayı Değil"));
  // Leading zeros don't count, so that the value read below can't overflow.
  while (i < t.size() - 1 && t[i] == QLatin1Char('0')) ++i;
  const qsizetype basamak = t.size() - i;
  const bool eksi = t[0] == QLatin1Char('-');
  const qint64 deger = basamak > 10 ? 0 : t.mid(i).toLongLong() * (eksi ? -1 : 1);
  if (basamak > 10 || deger > std::numeric_limits<qint32>::max() ||
      deger < std::numeric_limits<qint32>::min())
    return hata(QStringLiteral("Sayı Sınırının Dışında (En Fazla 2147483647)"));
  return qint32(deger);
}

}  // namespace contract

frmSozBul::frmSozBul(QWidget* ust) : QDialog(ust) {
  setObjectName(QStringLiteral("frmSozBul"));
  setWindowTitle(QStringLiteral("Sözleşme Ara"));

  txtSeri = ekran::Kutu(QStringLiteral("txtSeri"), 2);
  txtSeri->setText(Genel::SozlesmeSeri);
  txtSeri->setMaximumWidth(48);
  txtSozlesmeNo = ekran::Kutu(QStringLiteral("txtSozlesmeNo"), 10);
  for (QLineEdit* k : {txtSeri, txtSozlesmeNo}) ekran::EnterKur(k, [this] { OKButton_Click(); });
  lstSonuc = new QListWidget;
  lstSonuc->setObjectName(QStringLiteral("lstSonuc"));
  ekran::EnterKur(lstSonuc, [this] { lstSonuc_DblClick(); });
  OKButton = new QPushButton(QStringLiteral("Ara"));
  OKButton->setObjectName(QStringLiteral("OKButton"));
  CancelButton = new QPushButton(QStringLiteral("Vazgeç"));
  CancelButton->setObjectName(QStringLiteral("CancelButton"));
  for (QPushButton* d : {OKButton, CancelButton}) d->setAutoDefault(false);

  auto* alanlar = new QGridLayout;
  alanlar->addWidget(new QLabel(QStringLiteral("Seri:")), 0, 0);
  alanlar->addWidget(txtSeri, 0, 1, Qt::AlignLeft);
  alanlar->addWidget(new QLabel(QStringLiteral("Sözleşme No:")), 1, 0);
  alanlar->addWidget(txtSozlesmeNo, 1, 1);
  auto* sol = new QVBoxLayout;
  sol->addLayout(alanlar);
  sol->addWidget(lstSonuc, 1);
  auto* sag = new QVBoxLayout;
  sag->addWidget(OKButton);
  sag->addWidget(CancelButton);
  sag->addStretch();
  auto* duzen = new QHBoxLayout(this);
  duzen->addLayout(sol, 1);
  duzen->addLayout(sag);
  resize(ekran::Twip(4800), ekran::Twip(3600));

  // A failing engine is shown, and the dialog stays for another search.
  connect(OKButton, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { OKButton_Click(); }); });
  connect(CancelButton, &QPushButton::clicked, this, [this] { CancelButton_Click(); });
  connect(lstSonuc, &QListWidget::itemDoubleClicked, this, [this] { lstSonuc_DblClick(); });
  txtSozlesmeNo->setFocus();
}

void frmSozBul::OKButton_Click() {
  if (txtSozlesmeNo->text().trimmed().isEmpty()) {
    mesaj::Goster(QStringLiteral("Sözleşme Numarası Girmelisiniz"), QStringLiteral("UYARI"),
                  mesaj::Tur::Bilgi);
    return;
  }
  QString neden;
  const std::optional<qint32> no = contract::SozlesmeNoOku(txtSozlesmeNo->text(), &neden);
  if (!no) {
    mesaj::Goster(QStringLiteral("Sözleşme Numarası ") + neden, QStringLiteral("UYARI"),
                  mesaj::Tur::Bilgi);
    txtSozlesmeNo->setFocus();
    ekran::MetinSec(txtSozlesmeNo);
    return;
  }
  // Without a series the search runs over all of them.
  QString sql = QStringLiteral("SELECT SozlesmeID, SozlesmeNo, Tarih FROM Sozlesme WHERE");
  QVariantList deger;
  if (!txtSeri->text().isEmpty()) {
    sql += QStringLiteral(" SozlesmeSeri = ? AND");
    deger << txtSeri->text();
  }
  sql += QStringLiteral(" SozlesmeNo = ?");
  deger << *no;
  db::Kayitlar rs = Genel::Baglanti.Sorgu(sql, deger);

  lstSonuc->clear();
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    auto* oge = new QListWidgetItem(Genel::TarihEkran(rs.Fields(QStringLiteral("Tarih"))) +
                                    QStringLiteral(" - ") + rs.Metin(QStringLiteral("SozlesmeNo")));
    oge->setData(Qt::UserRole, rs.Fields(QStringLiteral("SozlesmeID")));
    lstSonuc->addItem(oge);
  }
  if (lstSonuc->count() > 0) lstSonuc->setCurrentRow(0);
}

void frmSozBul::CancelButton_Click() {
  BulunanSozlesmeID = 0;
  reject();
}

void frmSozBul::lstSonuc_DblClick() {
  const QListWidgetItem* oge = lstSonuc->currentItem();
  if (!oge || !oge->isSelected()) return;
  BulunanSozlesmeID = oge->data(Qt::UserRole).toLongLong();
  accept();
}

void frmSozBul::keyPressEvent(QKeyEvent* e) {
  // Esc is the cancel button; only the close box keeps the earlier result.
  if (e->key() == Qt::Key_Escape) {
    CancelButton_Click();
    return;
  }
  QDialog::keyPressEvent(e);
}
