#pragma once
// The contract screen's print: the common steps, the printer
// question, and the stream of the template or of the fixed layout to the
// printer of Sozlesme/Printer.

class frmSozles;

namespace contract {

// Prints the contract on show in `sozlesme`.
void SozlesmeYazdir(frmSozles* sozlesme);

// Registers the command "SozlesmeYazdir" that the contract screen's
// cmdYazdir runs, for the contract screen the clerk is in.
void SozlesmeYazdirKaydet();

}  // namespace contract
