#pragma once
// The form preview of the latest invoice, for the settings screen's
// "Önizleme": the stream of that invoice with the values of the settings
// screen's boxes as they stand (saved or not), drawn as it lands on paper.

class frmIni;

namespace fatura {
struct YaziAyari;
}

namespace invoice {

// The layout values of the settings screen's boxes, read as AyarOku reads
// the file.
fatura::YaziAyari EkrandakiAyar(const frmIni* ini);

// Opens the preview over `ini` (the settings in force when there is none).
void FaturaOnizle(frmIni* ini);

// Registers the command "FaturaOnizleme" for the settings screen.
void FaturaOnizlemeKaydet();

}  // namespace invoice
