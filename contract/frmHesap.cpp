// The calculation worksheet: building it, opening it, showing the scratch
// record, wiping it, saving it, and its lines and bordro.

#include "contract/frmHesap.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>

#include "contract/Faiz.h"
#include "contract/SozlesOrtak.h"
#include "contract/rptHesap.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"

namespace {

const QColor kZemin(192, 196, 193);

// Every line of the worksheet is a cheque without drawer, bank or number.
const QString kCek = QStringLiteral("Çek");

using contract::Ayriliyor;
using contract::Dugme;

}  // namespace

frmHesap::frmHesap(QWidget* ust) : contract::SozlesTemel(ust) {
  Kur();
  KurDavranis();
}

void frmHesap::Kur() {
  const QPalette zemin = contract::ZeminBoya(this, kZemin);

  const auto etiket = [this](const QString& yazi) { return Etiket(yazi); };
  const int harf = contract::HarfGenisligi(this);
  const auto genislik = [harf](QWidget* w, int n) { contract::Genislik(w, harf, n); };

  // --- the customer
  MusteriCercevesiKur(harf)->addStretch();
  frmSearch->setPalette(zemin);
  frmSearch->setAutoFillBackground(true);

  // --- the calculation: what the clerk gives on the left, what comes of it
  // on the right, from the total down to the payable amount.
  txtTarih = ekran::Kutu(QStringLiteral("txtTarih"));
  txtFaizOran = ekran::Kutu(QStringLiteral("txtFaizOran"), 10);
  txtValor = ekran::Kutu(QStringLiteral("txtValor"), 2);
  txtMasraf = ekran::Kutu(QStringLiteral("txtMasraf"), 15);
  txtTutar = ekran::Kutu(QStringLiteral("txtTutar"), 20);
  txtFaizTutar = ekran::Kutu(QStringLiteral("txtFaizTutar"), 20);
  txtVergiProv = ekran::Kutu(QStringLiteral("txtVergiProv"), 20);
  txtVergiProv->setText(QStringLiteral("0"));
  txtOdenecek = ekran::Kutu(QStringLiteral("txtOdenecek"), 20);
  for (QLineEdit* k : {txtMasraf, txtTutar, txtFaizTutar, txtVergiProv, txtOdenecek})
    k->setAlignment(Qt::AlignRight);
  lblFaizGun = etiket(QString());
  txtOdenecek->setFont(contract::FaizGunEtiketiKur(lblFaizGun, harf));

  genislik(txtTarih, 10);
  genislik(txtFaizOran, 6);
  genislik(txtValor, 3);
  for (QLineEdit* k : {txtMasraf, txtTutar, txtFaizTutar, txtVergiProv, txtOdenecek})
    genislik(k, 15);

  auto* hesap = new QGridLayout;
  hesap->setHorizontalSpacing(8);
  hesap->setVerticalSpacing(6);
  const auto sol = [](QWidget* w) {
    auto* h = new QHBoxLayout;
    h->addWidget(w);
    h->addStretch();
    return h;
  };
  hesap->addWidget(etiket(QStringLiteral("Tarih:")), 0, 0);
  hesap->addLayout(sol(txtTarih), 0, 1);
  hesap->addWidget(etiket(QStringLiteral("Faiz:")), 1, 0);
  hesap->addLayout(sol(txtFaizOran), 1, 1);
  hesap->addWidget(etiket(QStringLiteral("Valör:")), 2, 0);
  hesap->addLayout(sol(txtValor), 2, 1);
  hesap->addWidget(etiket(QStringLiteral("Provizyon")), 3, 0);
  hesap->addLayout(sol(txtMasraf), 3, 1);
  hesap->setColumnMinimumWidth(2, harf * 4);
  hesap->addWidget(etiket(QStringLiteral("Tutar:")), 0, 3);
  hesap->addWidget(txtTutar, 0, 4);
  hesap->addWidget(etiket(QStringLiteral("Faiz Tutar:")), 1, 3);
  hesap->addWidget(txtFaizTutar, 1, 4);
  hesap->addWidget(etiket(QStringLiteral("Vergi / Prov. ")), 2, 3);
  hesap->addWidget(txtVergiProv, 2, 4);
  hesap->addWidget(etiket(QStringLiteral("ÖdenecekTutar:")), 3, 3);
  hesap->addWidget(txtOdenecek, 3, 4);
  hesap->addWidget(lblFaizGun, 3, 5);
  hesap->setColumnStretch(6, 1);

  // --- the lines
  DetayGirisiKur(harf);
  // "Ekle" becomes "Kaydet" while a line is changed: room for the longer one.
  cmdDetayEkle->setMinimumWidth(
      std::max(cmdDetayEkle->minimumWidth(),
               cmdDetayEkle->fontMetrics().horizontalAdvance(QStringLiteral("Kaydet")) + 24));
  {
    auto* h = new QHBoxLayout(frmCek);
    h->setSpacing(8);
    h->addWidget(etiket(QStringLiteral("Vade:")));
    h->addWidget(txtVade);
    h->addSpacing(8);
    h->addWidget(etiket(QStringLiteral("Gün:")));
    h->addWidget(txtGun);
    h->addSpacing(8);
    h->addWidget(etiket(QStringLiteral("Meblağ:")));
    h->addWidget(txtMeblag);
    h->addSpacing(12);
    for (QPushButton* d : {cmdDetayEkle, cmdVazgec, cmdDetaySil}) h->addWidget(d);
    h->addStretch();
  }

  dGridDetay = contract::DetayIzgarasi(5);

  // --- commands
  cmdNew = Dugme(QStringLiteral("cmdNew"), QStringLiteral("&Yeni Hesaplama"));
  cmdBordro = Dugme(QStringLiteral("cmdBordro"), QStringLiteral("Bordro"));
  cmdExit = Dugme(QStringLiteral("cmdExit"), QStringLiteral("&Çıkış"));

  auto* izgaraAlti = new QHBoxLayout;
  izgaraAlti->addStretch();
  izgaraAlti->addWidget(cmdCekDuzelt);

  auto* komutlar = new QHBoxLayout;
  komutlar->addWidget(cmdNew);
  komutlar->addStretch();
  komutlar->addWidget(cmdBordro);
  komutlar->addSpacing(12);
  komutlar->addWidget(cmdExit);

  DuzenKur(hesap, izgaraAlti, komutlar);

  // The order of the keyboard: customer, the four fields the clerk gives, the
  // line, then the commands. The computed boxes are locked and out of it.
  const QList<QWidget*> sira = {cmbAd,      txtTarih,     txtFaizOran,  txtValor,    txtMasraf,
                                txtTutar,   txtFaizTutar, txtVergiProv, txtOdenecek, txtVade,
                                txtGun,     txtMeblag,    cmdDetayEkle, cmdVazgec,   cmdDetaySil,
                                dGridDetay, cmdCekDuzelt, cmdNew,       cmdBordro,   cmdExit};
  for (int i = 1; i < sira.size(); ++i) setTabOrder(sira[i - 1], sira[i]);
}

void frmHesap::KurDavranis() {
  // Leaving a field; the grid, the line entry and the commands both screens
  // have. An engine failure a handler leaves is shown and the screen stays.
  OrtakDavranis(this);
  for (QLineEdit* k : {txtTutar, txtFaizTutar, txtOdenecek})
    ekran::AyrilirkenKontrol(k, [k] { return !Ayriliyor(k) || contract::TutarKontrol(k, false); });
  ekran::AyrilirkenKontrol(txtFaizOran, [this] {
    if (Ayriliyor(txtFaizOran)) contract::OranKontrol(txtFaizOran);
    return true;
  });
  ekran::AyrilirkenKontrol(txtValor, [this] { return txtValor_Validate(); });
  ekran::AyrilirkenKontrol(txtMasraf, [this] { return txtMasraf_Validate(); });
  ekran::SayiTusuKur(txtMasraf);
  // Computed: never typed.
  ekran::SaltOkunur(txtVergiProv, true);
  ekran::SaltOkunur(txtOdenecek, true);
  for (QWidget* w : std::initializer_list<QWidget*>{cmdVazgec, cmdExit})
    ekran::KontrolTetiklemez(w);

  for (QWidget* w : std::initializer_list<QWidget*>{cmbAd, txtTarih}) w->installEventFilter(this);
}

// --- opening and closing

void frmHesap::Form_Load() {
  AcilisHazirla();
  setWindowTitle(QStringLiteral("Ödünç Para"));
  contract::MusteriDoldur(rsMusteri, musteriler_, cmbAd, kMusteriSiniri);
  // In either mode: the last calculation comes back.
  rsSozlesme = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Hesap ORDER BY Tarih"));
  KayitDurum = 0;
  Goster();
  CekBosalt();  // the day field shows its "0" from the start
}

// --- showing the calculation

void frmHesap::Goster() {
  if (!rsSozlesme || !rsSozlesme->SatirVar()) {
    bosalt();
    KontrolText(false);
    KontrolButon(QStringLiteral("Bos"));
  } else {
    const db::Kayitlar& kayit = *rsSozlesme;
    const auto alan = [&kayit](const char* ad) { return kayit.Fields(QString::fromLatin1(ad)); };
    // Whatever the record says: the worksheet always computes.
    Hesapla = true;
    HesaplaKilit();

    ilaveGun = contract::KayitGoster(kayit, txtTarih, txtTutar, txtFaizOran, txtValor);
    const QVariant masraf = alan("Masraf");
    txtMasraf->setText(db::NullMu(masraf) ? QString() : faiz::ParaYazisi(masraf.toDouble()));
    SozlesmeID = 1;

    txtMusteriNo->setText(contract::SayiMetni(alan("MusteriNo")));
    MusteriBul();
    contract::FaizTutariGoster(kayit, Tutarlar(), Odenecek);

    KontrolText(false);
    KontrolButon(QStringLiteral("Normal"));
    DetayAc();
  }
  TutarHesap();
}

void frmHesap::bosalt() {
  // The scratch record and its lines go together, before anything on screen
  // changes: when the engine refuses, the calculation stays as it was.
  {
    db::Islem islem(Genel::Baglanti);
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Hesap"));
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM HesapDetay"));
    islem.Onayla();
  }
  if (rsSozlesme) rsSozlesme->Requery();
  for (QLineEdit* k : {txtTarih, txtTutar, txtFaizTutar, txtFaizOran, txtOdenecek, txtVergiProv})
    k->clear();
  lblFaizGun->clear();
  SozlesmeID = 0;
  ilaveGun = Genel::IlaveGun;
  Hesapla = Genel::Hesapla;
  HesaplaKilit();
  txtValor->setText(faiz::ValorYazisi(ilaveGun));
  DetayDuzAc();
}

void frmHesap::KontrolText(bool) {
  // Open for typing at all times, the customer as well.
  for (QWidget* w : std::initializer_list<QWidget*>{txtTarih, txtFaizOran, txtValor, txtMasraf,
                                                    txtTutar, txtFaizTutar, txtVergiProv,
                                                    txtOdenecek, txtVade, txtGun, txtMeblag, cmbAd})
    w->setEnabled(true);
}

void frmHesap::KontrolButon(const QString&) {
  for (QWidget* w : std::initializer_list<QWidget*>{cmdNew, cmdBordro, cmdDetayEkle, cmdVazgec})
    w->setEnabled(true);
  Gorunum(true);
  cmdDetaySil->setVisible(false);
}

void frmHesap::Gorunum(bool) {
  for (QWidget* w : std::initializer_list<QWidget*>{
           txtTarih, txtFaizOran, txtValor, txtMasraf, txtTutar, txtFaizTutar, txtVergiProv,
           txtOdenecek, frmCek, txtVade, txtGun, txtMeblag, cmdDetayEkle, cmdVazgec, dGridDetay,
           cmdCekDuzelt, cmdBordro})
    w->setVisible(true);
  for (QLabel* l : etiketler_) l->setVisible(true);
}

// --- the customer

void frmHesap::cmbAd_GotFocus() {
  // The contract screen hides its contract here; the worksheet shows all.
  if (musteriBazinda_) Gorunum(false);
}

// --- fields

void frmHesap::txtTarih_GotFocus() {
  if (txtTarih->text().isEmpty()) txtTarih->setText(Genel::TarihYaz(QDate::currentDate()));
}

bool frmHesap::txtMasraf_Validate() {
  if (!Ayriliyor(txtMasraf)) return true;
  if (!contract::TutarKontrol(txtMasraf, false)) return false;
  // The one field whose change shows at once.
  TutarHesap();
  return true;
}

bool frmHesap::eventFilter(QObject* o, QEvent* e) {
  if (e->type() == QEvent::FocusIn &&
      static_cast<QFocusEvent*>(e)->reason() != Qt::PopupFocusReason) {
    if (o == cmbAd) cmbAd_GotFocus();
    if (o == txtTarih) txtTarih_GotFocus();
  }
  return ekran::Form::eventFilter(o, e);
}

// --- totals

void frmHesap::TutarHesap() {
  faiz::Girdi girdi = contract::FaizGirdisi(txtTarih, txtFaizOran, ilaveGun, Hesapla);
  double masraf = 0;
  Genel::SayiOkuDene(txtMasraf->text(), masraf);  // empty, or refused on leaving: no fee
  girdi.Masraf = masraf;

  const faiz::Sonuc sonuc = faiz::TutarHesap(girdi, contract::FaizSatirlari(rsDetay));
  contract::SonucuYaz(sonuc, Tutarlar(), DetaySayisi, GunYazisi, Odenecek);
  // Step T11: the tax and the fee.
  if (sonuc.txtVergiProv) txtVergiProv->setText(*sonuc.txtVergiProv);
  if (sonuc.TahsilMasrafi) TahsilMasrafi = *sonuc.TahsilMasrafi;
  if (sonuc.BMVergisi) BMVergisi = *sonuc.BMVergisi;
  contract::IzgaraSonunda(rsDetay, dGridDetay);
}

// --- a new calculation and saving it

void frmHesap::cmdNew_Click() {
  if (!contract::MusteriSecilmis(txtMusteriNo, cmbAd, musteriBazinda_)) return;
  // Wiped first, without a question: when the engine fails there, the
  // screen stays as it was. The customer stays.
  bosalt();
  CekBosalt();
  KayitDurum = 2;
  DetayDurum = 3;
  DetaySayisi = 0;
  // A line that was taken in is gone with the rest.
  contract::GirisDugmeleri(Giris(), false);
  txtTarih->setFocus();
}

bool frmHesap::HesapKaydet() {
  if (!contract::TarihFaizKontrol(txtTarih, txtFaizOran)) return false;
  KayitDurum = 2;
  try {
    HesapYaz();
    if (rsSozlesme)
      rsSozlesme->Requery();
    else
      rsSozlesme = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Hesap ORDER BY Tarih"));
    rsSozlesme->MoveFirst();
    Goster();
    KayitDurum = 0;
    return true;
  } catch (const db::Hata& h) {
    contract::KayitHatasi(h.metin());
  } catch (const contract::Red& r) {
    contract::KayitHatasi(r.neden);
  }
  return false;
}

void frmHesap::HesapYaz() {
  const QVariant tarih = Genel::TarihSql(txtTarih->text());
  // The words are those of the payable amount, or with Hesapla off of the
  // amount as typed.
  if (Hesapla)
    TutarHesap();
  else
    Odenecek = contract::TutarOku(txtTutar->text(), QStringLiteral("Tutar"));
  const QString yaziyla = contract::Yaziyla(Odenecek);
  SozlesmeID = 1;

  // Every value is read before anything is written. A calculation needs a
  // customer: without one its bordro has nobody to name, and the save is
  // refused as the contract's is.
  const qint64 musteri = contract::MusteriNoOku(txtMusteriNo->text());
  const double tutar = contract::TutarOku(txtTutar->text(), QStringLiteral("Tutar"));
  double faizOran = 0;
  Genel::SayiOkuDene(txtFaizOran->text(), faizOran);  // checked before
  const double faizTutar = contract::TutarOku(txtFaizTutar->text(), QStringLiteral("Faiz Tutar"));
  const double masraf = contract::TutarOku(txtMasraf->text(), QStringLiteral("Provizyon"));

  db::Islem islem(Genel::Baglanti);
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Hesap"));
  Genel::Baglanti.Calistir(
      QStringLiteral("INSERT INTO Hesap(SozlesmeSeri, SozlesmeNo, SozlesmeID, MusteriNo, Tarih, "
                     "Tutar, FaizOran, FaizTutar, Masraf, Yaziyla, Gun, ilaveGun) "
                     "VALUES (?, 1, 1, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      {Genel::SozlesmeSeri, musteri, tarih, tutar, faizOran, faizTutar, masraf, yaziyla, GunYazisi,
       ilaveGun});
  islem.Onayla();
}

void frmHesap::HesapDuzelt() {
  if (!rsSozlesme || !rsSozlesme->SatirVar()) return;
  KayitDurum = 1;
  txtTarih->setFocus();
}

// --- the lines

void frmHesap::DetayAc() {
  rsDetay = contract::DetayIzgarasiAc(QStringLiteral("HesapDetay"), false, txtTarih->text(),
                                      ilaveGun, SozlesmeID);
  DetayBagla();
}

void frmHesap::DetayDuzAc() {
  rsDetay = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM HesapDetay"));
  DetayBagla();
}

void frmHesap::DetayBagla() {
  dGridDetay->Bagla(&rsDetay);
  // All columns of the contract's grid are bound; the worksheet's papers
  // have no drawer, bank or number, and Durum (collected or not) means
  // nothing for a paper that was never taken in: those stay hidden.
  static constexpr contract::IzgaraSutunu kSutunlar[] = {{"GirisNo", 6, false},
                                                         {"SozlesmeNo", 8, false},
                                                         {"Tip", 6},
                                                         {"Vadesi", 12},
                                                         {"Gunu", 6},
                                                         {"Meblag", 16},
                                                         {"Kesideci", 0, false},
                                                         {"Banka", 12, false},
                                                         {"Sube", 12, false},
                                                         {"HesapNo", 11, false},
                                                         {"CekNo", 10, false},
                                                         {"Durum", 6, false}};
  contract::DetaySutunlari(dGridDetay, rsDetay, kSutunlar);
}

void frmHesap::CekBosalt() {
  txtGun->setText(QStringLiteral("0"));
  txtVade->clear();
  txtMeblag->clear();
  DetayDurum = 3;
}

bool frmHesap::DetayKontrol() {
  if (!contract::DetayLimitiKontrol(DetaySayisi, DetayDurum)) return false;
  if (txtGun->text().isEmpty()) txtGun->setText(QStringLiteral("0"));
  return contract::VadeGunMeblagKontrol(txtVade, txtGun, txtMeblag);
}

void frmHesap::DetayYaz() {
  const QVariant vade = Genel::TarihSql(txtVade->text());
  const qint64 gun = contract::GunDegeri(txtGun->text());
  const QString meblag = txtMeblag->text();
  if (DetayDurum != 1) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO HesapDetay(SozlesmeID, SozlesmeNo, Tip, Vadesi, Odenmesi, "
                       "Gun, Meblag) VALUES (?, 1, ?, ?, ?, ?, ?)"),
        {SozlesmeID, kCek, vade, vade, gun, Genel::SayiOku(meblag)});
    return;
  }
  QString sql = QStringLiteral("UPDATE HesapDetay SET Tip = ?");
  QVariantList degerler = {kCek};
  if (!txtVade->text().isEmpty()) {
    sql += QStringLiteral(", Vadesi = ?, Odenmesi = ?");
    degerler << vade << vade;
  }
  sql += QStringLiteral(", Gun = ?");
  degerler << gun;
  if (!meblag.isEmpty()) {
    sql += QStringLiteral(", Meblag = ?");
    degerler << Genel::SayiOku(meblag);
  }
  sql += QStringLiteral(" WHERE GirisNo = ?");
  degerler << GirisNo;
  Genel::Baglanti.Calistir(sql, degerler);
}

void frmHesap::cmdDetayEkle_Click() {
  if (!DetayKontrol()) return;
  try {
    // The calculation is stored before its line.
    if (!HesapKaydet()) {
      mesaj::Kritik(QStringLiteral("Bir Hata Oldu, Lütfen Tekrar Deneyiniz"),
                    QStringLiteral("HATA"));
      return;
    }
    DetayYaz();
    DetayDuzAc();
    cmdDetayEkle->setText(QStringLiteral("Ekle"));
    CekBosalt();
    TutarHesap();
    cmdDetaySil->hide();
    // The new totals are stored, and the next line can follow.
    HesapKaydet();
    HesapDuzelt();
    txtVade->setFocus();
  } catch (const db::Hata& h) {
    contract::DetayHatasi(h.metin());
  } catch (const Genel::SayiHatasi& h) {
    contract::DetayHatasi(h.metin + QStringLiteral(" Sayı Değil"));
  }
}

void frmHesap::SatiriAl() {
  GirisNo = contract::SatiriGiriseAl(rsDetay, Giris());
  contract::GirisDugmeleri(Giris(), true);
  DetayDurum = 1;
  txtVade->setFocus();
}

void frmHesap::dGridDetay_DblClick() {
  if (Genel::SadeceGoster || !rsDetay.SatirVar()) return;
  SatiriAl();
}

void frmHesap::cmdCekDuzelt_Click() {
  HesapDuzelt();
  if (!Genel::SadeceGoster && rsDetay.SatirVar() && KayitDurum == 1) SatiriAl();
}

void frmHesap::cmdVazgec_Click() {
  const bool alinmis = DetayDurum == 1;
  CekBosalt();
  if (alinmis) contract::GirisDugmeleri(Giris(), false);
  txtVade->setFocus();
}

void frmHesap::cmdDetaySil_Click() {
  if (!mesaj::EvetMi(QStringLiteral("Kayıt Silinecek, Emin misiniz? "), QStringLiteral("Onay"),
                     mesaj::Tur::Duz))
    return;
  try {
    // The line taken into the entry, whichever row the grid stands on now.
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM HesapDetay WHERE GirisNo = ?"), {GirisNo});
    DetayDuzAc();
    cmdDetayEkle->setText(QStringLiteral("Ekle"));
    CekBosalt();
    TutarHesap();
    HesapKaydet();
    HesapDuzelt();
    cmdDetaySil->hide();
  } catch (const db::Hata& h) {
    contract::DetayHatasi(h.metin());
  }
}

// --- the bordro

void frmHesap::cmdBordro_Click() {
  HesapKaydet();  // its result isn't looked at: the bordro shows what is stored
  const db::Kayitlar veri = contract::HesapBordroVerisi(BMVergisi, TahsilMasrafi, KomisyonTutar);
  if (veri.RecordCount() == 0) {
    mesaj::Bilgi(QStringLiteral("Bordro Dökebilmek için Fatura Bilgilerini Girmeniz Gerekmektedir"),
                 QStringLiteral("UYARI"));
    return;
  }
  contract::HesapBordroEtiketleri e;
  e.Musteri = cmbAd->currentText();
  e.FaizOran = txtFaizOran->text();
  e.Tarih = txtTarih->text();
  e.Odenecek = txtOdenecek->text();
  e.OrtGun = Genel::OrtGun;
  rapor::Goster(contract::rptHesap(veri, e), this);
}

namespace contract {

void HesapEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmHesap"), [] { return new frmHesap; });
}

}  // namespace contract
