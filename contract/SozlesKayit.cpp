// The contract screen's commands that write contracts: new, change, save,
// cancel, delete, and the proposal of the next number.

#include <optional>

#include "contract/Faiz.h"
#include "contract/SozlesOrtak.h"
#include "contract/frmSozBul.h"
#include "contract/frmSozles.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"

namespace {

using contract::MusteriNoOku;
using contract::Red;
using contract::TutarOku;

// The contract number goes to the table as a 32-bit integer; the find and
// renumber dialogs read it by the same rule.
qint32 SozlesmeNoOku(const QString& metin) {
  QString neden;
  const std::optional<qint32> no = contract::SozlesmeNoOku(metin, &neden);
  if (!no) throw Red{QStringLiteral("Sözleşme Numarası ") + neden};
  return *no;
}

double OranOku(const QString& metin) {
  double v = 0;
  Genel::SayiOkuDene(metin, v);  // checked before
  return v;
}

// Where a contract stands in the screen's set: the date and number it is
// ordered by, and the customer whose contracts the set may be.
struct SiraAnahtari {
  QVariant tarih;
  qint64 no = 0;
  qint64 musteri = 0;
  bool operator==(const SiraAnahtari&) const = default;
};

// The stored contract's place; none when its row is gone.
std::optional<SiraAnahtari> SiraOku(qint32 id) {
  const db::Kayitlar rs = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT Tarih, SozlesmeNo, MusteriNo FROM Sozlesme WHERE SozlesmeID = ?"),
      {id});
  if (!rs.SatirVar()) return std::nullopt;
  return SiraAnahtari{rs.Fields(0), rs.Fields(1).toLongLong(), rs.Fields(2).toLongLong()};
}

// The contract's lines and its invoice take its new number.
void NumarayiTasi(qint32 id, qint32 no) {
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE SozlesmeDetay SET SozlesmeNo = ? WHERE SozlesmeID = ?"), {no, id});
  Genel::Baglanti.Calistir(QStringLiteral("UPDATE Fatura SET SozlesmeNo = ? WHERE SozlesmeID = ?"),
                           {no, id});
}

}  // namespace

// --- a new contract

void frmSozles::cmdNew_Click() {
  if (!contract::MusteriSecilmis(txtMusteriNo, cmbAd, MusteriBazinda())) return;
  // Emptied first: when the engine fails there, the screen stays in its mode.
  bosalt();
  CekBosalt();
  KayitDurum = 2;
  DetayDurum = 3;
  DetaySayisi = 0;
  cmbAd->setEnabled(false);
  KontrolText(true);
  ekran::SaltOkunur(txtSozlesmeNo, false);
  KontrolButon(QStringLiteral("Edit"));
  SeriKod = Genel::SozlesmeSeri.leftJustified(2, QLatin1Char(' '), true);
  cmdSozNoBul->setEnabled(true);
  txtTarih->setFocus();
  if (!MusteriBazinda()) {
    // Over all contracts the customer is picked first.
    cmbAd->setCurrentIndex(-1);
    cmbAd->setEditText(QString());
    cmbAd->setEnabled(true);
    cmbAd->setFocus();
  }
}

void frmSozles::cmdSozNoBul_Click() { SozNoBul(); }

void frmSozles::SozNoBul() {
  const QVariant son = Genel::Baglanti.Deger(QStringLiteral("SELECT max(Tarih) FROM Sozlesme"));
  const QString tarih =
      db::NullMu(son) ? QDate::currentDate().toString(Qt::ISODate) : son.toString();
  const QVariant no = Genel::Baglanti.Deger(
      QStringLiteral("SELECT max(SozlesmeNo) FROM Sozlesme WHERE SozlesmeSeri = ? AND Tarih >= ?"),
      {Genel::SozlesmeSeri, tarih});
  if (db::NullMu(no)) {
    mesaj::Kritik(QStringLiteral("Hiç Sözlesme Girmemissiniz"));
    txtSozlesmeNo->setFocus();
    return;
  }
  txtSozlesmeNo->setText(QString::number(no.toLongLong() + 1));
  txtFaizOran->setFocus();
}

qint32 frmSozles::YeniSozlesmeID() {
  const QVariant son =
      Genel::Baglanti.Deger(QStringLiteral("SELECT max(SozlesmeID) FROM Sozlesme"));
  return db::NullMu(son) || son.toString().isEmpty() ? 1 : qint32(son.toLongLong() + 1);
}

// --- changing

bool frmSozles::FaturaVar() {
  const QVariant fatura = Genel::Baglanti.Deger(
      QStringLiteral("SELECT FaturaNo FROM Fatura WHERE SozlesmeID = ?"), {SozlesmeID});
  if (db::NullMu(fatura)) return false;
  mesaj::Kritik(QStringLiteral("Bu Sözleşme için Kesilmiş %1 Nolu Fatura var, Değişiklik Yapmadan "
                               "Önce Faturayı Silmelisiniz!")
                    .arg(fatura.toString()),
                QStringLiteral("FATURA KESİLMİŞ"));
  return true;
}

void frmSozles::cmdEdit_Click() {
  if (!rsSozlesme || !rsSozlesme->SatirVar()) return;
  if (FaturaVar()) return;
  KayitDurum = 1;
  EskiSozlesmeNo = txtSozlesmeNo->text().trimmed().toInt();
  KontrolText(true);
  ekran::SaltOkunur(txtSozlesmeNo, false);
  KontrolButon(QStringLiteral("Edit"));
  txtTarih->setFocus();
}

void frmSozles::cmdCancel_Click() {
  cmbAd->setEnabled(true);
  KayitDurum = 0;
  Goster();
}

void frmSozles::cmdsil_Click() {
  if (!rsSozlesme || !rsSozlesme->SatirVar()) return;
  if (FaturaVar()) return;
  if (!mesaj::EvetMi(
          QStringLiteral("Müşteriye Ait Sözleşme, Çek Senet Kayıtlarıyla Birlikte Silinecektir. "),
          QStringLiteral("Emin Misiniz?"), mesaj::Tur::Duz))
    return;
  try {
    // The lines and the contract go together or not at all.
    db::Islem islem(Genel::Baglanti);
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM SozlesmeDetay WHERE SozlesmeID = ?"),
                             {SozlesmeID});
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Sozlesme WHERE SozlesmeID = ?"),
                             {SozlesmeID});
    islem.Onayla();
  } catch (const db::Hata& h) {
    contract::KayitHatasi(h.metin());
    return;
  }
  rsSozlesme->Requery();
  Goster();
}

// --- saving

struct frmSozles::KayitDegerleri {
  QVariant tarih;
  qint32 no = 0;
  qint64 musteri = 0;
  double tutar = 0, faizTutar = 0, faizOran = 0, gecikme = 0, iskonto = 0;
  // An empty txtFaizTutar leaves the stored interest of a changed contract.
  bool faizTutarVar = false;
  QString doviz, yaziyla, gun;
  qint64 ilaveGun = 0;
  int hesapla = 0;
};

void frmSozles::cmdSave_Click() { SozlesmeKaydet(); }

bool frmSozles::SozlesmeKaydet() {
  if (!KaydetKontrol()) return false;
  try {
    const KayitDegerleri d = KayitDegerleriOku();
    if (KayitDurum == 2)
      SozlesmeEkle(d);
    else
      SozlesmeGuncelle(d);
    KayitDurum = 0;
    return true;
  } catch (const db::Hata& h) {
    contract::KayitHatasi(h.metin());
  } catch (const Red& r) {
    contract::KayitHatasi(r.neden);
  }
  return false;
}

bool frmSozles::KaydetKontrol() {
  const auto hatali = [](QLineEdit* kutu, const QString& metin, const QString& baslik) {
    mesaj::Kritik(metin, baslik);
    kutu->setFocus();
    return false;
  };
  if (txtSozlesmeNo->text().trimmed().isEmpty()) {
    mesaj::Kritik(QStringLiteral("Lütfen Sözleşme Numarası Girin!!"), QStringLiteral("Uyarı"));
    if (txtSozlesmeNo->isEnabled()) txtSozlesmeNo->setFocus();
    return false;
  }
  if (!contract::TarihFaizKontrol(txtTarih, txtFaizOran)) return false;
  const QString hataliGiris = QStringLiteral("Hatalı Giriş");
  if (!Genel::SayiMi(txtGecikmeOran->text()))
    return hatali(txtGecikmeOran, QStringLiteral("Lütfen Gecikme Oranı Bilgisini Girin"),
                  hataliGiris);
  if (!Genel::SayiMi(txtIskontoOran->text()))
    return hatali(txtIskontoOran, QStringLiteral("Lütfen İskonto Oranı Bilgisini Girin"),
                  hataliGiris);
  return true;
}

frmSozles::KayitDegerleri frmSozles::KayitDegerleriOku() {
  KayitDegerleri d;
  d.doviz = cmbDoviz->currentText().isEmpty() ? QStringLiteral("TRL") : cmbDoviz->currentText();
  d.tarih = Genel::TarihSql(txtTarih->text());
  // The words are those of the payable amount, or with Hesapla off of the
  // amount as typed.
  if (Hesapla)
    TutarHesap();
  else
    Odenecek = TutarOku(txtTutar->text(), QStringLiteral("Tutar"));
  d.yaziyla = contract::Yaziyla(Odenecek);

  d.no = SozlesmeNoOku(txtSozlesmeNo->text());
  d.musteri = MusteriNoOku(txtMusteriNo->text());
  d.tutar = TutarOku(txtTutar->text(), QStringLiteral("Tutar"));
  d.faizTutar = TutarOku(txtFaizTutar->text(), QStringLiteral("Faiz Tutar"));
  d.faizTutarVar = !txtFaizTutar->text().isEmpty();
  d.faizOran = OranOku(txtFaizOran->text());
  d.gecikme = OranOku(txtGecikmeOran->text());
  d.iskonto = OranOku(txtIskontoOran->text());
  d.gun = GunYazisi;
  d.ilaveGun = ilaveGun;
  d.hesapla = Hesapla ? 1 : 0;
  return d;
}

void frmSozles::SozlesmeEkle(const KayitDegerleri& d) {
  const qint32 id = YeniSozlesmeID();
  Genel::Baglanti.Calistir(
      QStringLiteral("INSERT INTO Sozlesme(SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
                     "FaizOran, GecikmeOran, IskontoOran, FaizTutar, Yaziyla, Gun, ilaveGun, "
                     "SozlesmeID, Doviz, Hesapla) "
                     "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      {Genel::SozlesmeSeri, d.no, d.musteri, d.tarih, d.tutar, d.faizOran, d.gecikme, d.iskonto,
       d.faizTutar, d.yaziyla, d.gun, d.ilaveGun, id, d.doviz, d.hesapla});
  SozlesmeID = id;
  if (!rsSozlesme) {
    // The customer-bound screen before its first contract.
    const QString yazilan = txtSozlesmeNo->text();
    BilgiBul();
    if (!yazilan.isEmpty()) txtSozlesmeNo->setText(yazilan);
  } else {
    rsSozlesme->Requery();
  }
  SozlesmeyeGit(SozlesmeID);
  Goster();
}

void frmSozles::SozlesmeGuncelle(const KayitDegerleri& d) {
  // The set holds keys in the order of date and number (or date within a
  // customer): it needs reading again only when the contract moved in that
  // order or left the customer. Back to the contract, or, when it has left
  // the set, to the place it stood.
  if (DegisikligiYaz(d) && rsSozlesme) {
    const int konum = rsSozlesme->AbsolutePosition();
    rsSozlesme->Requery();
    if (!SozlesmeyeGit(SozlesmeID)) rsSozlesme->setAbsolutePosition(konum);
  }
  Goster();
}

bool frmSozles::DegisikligiYaz(const KayitDegerleri& d) {
  QString sql = QStringLiteral(
      "UPDATE Sozlesme SET Tarih = ?, MusteriNo = ?, Tutar = ?, Gun = ?, ilaveGun = ?, "
      "FaizOran = ?, GecikmeOran = ?, IskontoOran = ?, Yaziyla = ?, Doviz = ?, Hesapla = ?, "
      "SozlesmeNo = ?");
  QVariantList degerler = {d.tarih,   d.musteri, d.tutar,   d.gun,   d.ilaveGun, d.faizOran,
                           d.gecikme, d.iskonto, d.yaziyla, d.doviz, d.hesapla,  d.no};
  if (d.faizTutarVar) {
    sql += QStringLiteral(", FaizTutar = ?");
    degerler << d.faizTutar;
  }
  sql += QStringLiteral(" WHERE SozlesmeID = ?");
  degerler << SozlesmeID;

  db::Islem islem(Genel::Baglanti);
  const std::optional<SiraAnahtari> once = SiraOku(SozlesmeID);
  Genel::Baglanti.Calistir(sql, degerler);
  // A new number goes to the lines and the invoice with the contract.
  if (d.no != EskiSozlesmeNo) NumarayiTasi(SozlesmeID, d.no);
  islem.Onayla();
  return !once || *once != SiraAnahtari{d.tarih, d.no, d.musteri};
}
