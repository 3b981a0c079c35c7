#include "contract/SozlesmeYazdir.h"

#include <QApplication>

#include "contract/SozlesmeBaski.h"
#include "contract/frmSozles.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "core/Yazdirma.h"

namespace contract {

void SozlesmeYazdir(frmSozles* sozlesme) {
  const auto hazir =
      sozlesmebaski::Hazirla(Genel::Baglanti, sozlesme->SozlesmeID, sozlesme->Odenecek,
                             sozlesme->GunYazisi, Genel::MasrafGoster);
  if (const auto* red = std::get_if<baski::Red>(&hazir)) {
    ekran::RedGoster(*red);
    return;
  }
  if (mesaj::Goster(QString::fromUtf16(sozlesmebaski::kYaziciSorusu),
                    QString::fromUtf16(sozlesmebaski::kYaziciBaslik), mesaj::Tur::Duz,
                    mesaj::Dugmeler::TamamIptal, sozlesme) != mesaj::Dugme::Tamam)
    return;
  const baski::Sonuc akis = sozlesmebaski::Akis(std::get<sozlesmebaski::Baski>(hazir),
                                                Genel::SahipAdi, sozlesmebaski::Ayar::Genelden());
  ekran::Yazdir(Genel::PrinterSozlesme, akis);
}

void SozlesmeYazdirKaydet() {
  ekran::KomutKaydet(QStringLiteral("SozlesmeYazdir"), [] {
    frmSozles* s = nullptr;
    for (QWidget* w = QApplication::focusWidget(); w && !s; w = w->parentWidget())
      s = qobject_cast<frmSozles*>(w);
    if (!s) s = qobject_cast<frmSozles*>(ekran::Acik(QStringLiteral("frmSozles")));
    if (s) SozlesmeYazdir(s);
  });
}

}  // namespace contract
