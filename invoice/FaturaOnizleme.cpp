#include "invoice/FaturaOnizleme.h"

#include <QApplication>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "core/Onizleme.h"
#include "core/frmIni.h"
#include "invoice/FaturaBaski.h"

namespace invoice {

fatura::YaziAyari EkrandakiAyar(const frmIni* ini) {
  const auto n = [](const QLineEdit* k) { return Genel::AyarSayisi(k->text()); };
  fatura::YaziAyari a;
  a.BasBosluk = n(ini->txtBasBosluk);
  a.SonBosluk = n(ini->txtSonBosluk);
  a.IsimBas = n(ini->txtIsimBas);
  a.TarihAtla = n(ini->txtTarihAtla);
  a.VergiAtla = n(ini->txtVergiAtla);
  a.TarihBas = n(ini->txtTarihBas);
  a.VergiBas = n(ini->txtVergiBas);
  a.TutarSatirAtla = n(ini->txtTutarSatir);
  a.TutarBas = n(ini->txtTutarBosluk);
  a.DetaySatirAtla = n(ini->txtDetayAtla);
  a.YeniSayfaAtla = n(ini->txtYeniSayfaAtla);
  a.Sayfabasi = ini->chkSayfaBasi->isChecked();
  a.PulBedeli = ini->chkPulBedeli->isChecked();
  return a;
}

void FaturaOnizle(frmIni* ini) {
  const std::optional<fatura::SonFatura> son = fatura::SonFaturaOku(Genel::Baglanti);
  if (!son) {
    mesaj::Bilgi(QStringLiteral("Önizlenecek fatura yok. Önce bir fatura kaydediniz."),
                 QStringLiteral("Önizleme"));
    return;
  }
  const fatura::YaziAyari ayar = ini ? EkrandakiAyar(ini) : fatura::YaziAyari::Genelden();
  const baski::Sonuc akis =
      fatura::FaturaAkisi(fatura::BicimSec(son->ek, Genel::SahipAdi), son->satir, ayar);
  onizleme::Goster(akis,
                   QStringLiteral("Fatura ") + son->satir.Metin(QStringLiteral("FaturaSeri")) +
                       QLatin1Char(' ') + son->satir.Metin(QStringLiteral("FaturaNo")),
                   ini ? static_cast<QWidget*>(ini) : ekran::AnaPencere());
}

void FaturaOnizlemeKaydet() {
  ekran::KomutKaydet(QStringLiteral("FaturaOnizleme"), [] {
    frmIni* ini = nullptr;
    for (QWidget* w = QApplication::focusWidget(); w && !ini; w = w->parentWidget())
      ini = qobject_cast<frmIni*>(w);
    if (!ini) ini = qobject_cast<frmIni*>(ekran::Acik(QStringLiteral("frmIni")));
    FaturaOnizle(ini);
  });
}

}  // namespace invoice
