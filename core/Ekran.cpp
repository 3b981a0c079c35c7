#include "core/Ekran.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include "core/Form.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Mesaj.h"

namespace ekran {

namespace {

const char* const kKontrolYok = "velmoraKontrolTetiklemez";
// The focus policy a box had before SaltOkunur locked it.
const char* const kOdakKurali = "velmoraOdakKurali";

bool SaltOkunurMu(QWidget* w) {
  auto* kutu = qobject_cast<QLineEdit*>(w);
  return kutu && kutu->isReadOnly();
}

// Runs the leave checks: one filter on the application watches focus changes
// and drops the mouse release that would click the control which took the
// focus from a field whose check failed.
class AyrilmaBekcisi : public QObject {
 public:
  static AyrilmaBekcisi& O() {
    static AyrilmaBekcisi* b = new AyrilmaBekcisi(qApp);
    return *b;
  }

  void Ekle(QWidget* w, std::function<bool()> f) {
    kontroller_[w] = std::move(f);
    connect(w, &QObject::destroyed, this, [this, w] { kontroller_.remove(w); });
  }

  bool Calistir(QWidget* w) {
    auto it = kontroller_.find(w);
    if (it == kontroller_.end() || calisiyor_ || SaltOkunurMu(w)) return true;
    calisiyor_ = true;
    const bool ok = it.value()();
    calisiyor_ = false;
    return ok;
  }

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (engel_ && o == engel_ &&
        (e->type() == QEvent::MouseButtonRelease || e->type() == QEvent::MouseButtonDblClick)) {
      engel_ = nullptr;
      return true;
    }
    if (e->type() == QEvent::MouseButtonPress && engel_ && o != engel_) engel_ = nullptr;
    // A button's keyboard shortcut clicks it without moving the focus: the
    // field being left is checked first all the same.
    if (e->type() == QEvent::Shortcut) {
      auto* dugme = qobject_cast<QAbstractButton*>(o);
      QWidget* odak = QApplication::focusWidget();
      if (dugme && odak && odak != dugme && kontroller_.contains(odak) &&
          !dugme->property(kKontrolYok).toBool() && !Calistir(odak)) {
        odak->setFocus(Qt::OtherFocusReason);
        if (auto* kutu = qobject_cast<QLineEdit*>(odak)) kutu->selectAll();
        return true;
      }
    }
    return false;
  }

 private:
  explicit AyrilmaBekcisi(QObject* ust) : QObject(ust) {
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &AyrilmaBekcisi::OdakDegisti);
  }

  void OdakDegisti(QWidget* eski, QWidget* yeni) {
    if (!eski || geriVeriliyor_ || !kontroller_.contains(eski)) return;
    if (!yeni || yeni->property(kKontrolYok).toBool()) return;
    // Focus moving inside the same composite control (a combo's line edit).
    if (eski->isAncestorOf(yeni) || yeni->isAncestorOf(eski)) return;
    // A message box or a blocking dialogue takes the focus for a while and
    // gives it back: the field has not been left.
    if (yeni->window() != eski->window() && yeni->window()->isModal()) return;
    if (Calistir(eski)) return;
    engel_ = yeni;
    geriVeriliyor_ = true;
    eski->setFocus(Qt::OtherFocusReason);
    if (auto* kutu = qobject_cast<QLineEdit*>(eski)) kutu->selectAll();
    geriVeriliyor_ = false;
  }

  QHash<QWidget*, std::function<bool()>> kontroller_;
  QPointer<QWidget> engel_;
  bool geriVeriliyor_ = false;
  bool calisiyor_ = false;
};

class OdakSecici : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::FocusIn) {
      QPointer<QLineEdit> kutu = qobject_cast<QLineEdit*>(o);
      // After the click that gave the focus has placed the cursor.
      QTimer::singleShot(0, kutu, [kutu] {
        if (kutu && kutu->hasFocus()) MetinSec(kutu);
      });
    }
    return false;
  }
};

class TusSuzgeci : public QObject {
 public:
  enum class Tur { BuyukHarf, Sayi, Tarih };
  TusSuzgeci(QObject* ust, Tur t) : QObject(ust), tur_(t) {}

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() != QEvent::KeyPress) return false;
    auto* k = static_cast<QKeyEvent*>(e);
    auto* kutu = qobject_cast<QLineEdit*>(o);
    if (!kutu) return false;
    if (tur_ == Tur::Tarih) {
      if (k->key() == Qt::Key_Escape) {
        kutu->clear();
        return true;
      }
      return false;
    }
    if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter)
      return tur_ == Tur::Sayi;  // Enter is no number key
    const QString t = k->text();
    if (t.size() != 1 || k->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
    const QChar c = t[0];
    if (!c.isPrint()) return false;
    if (tur_ == Tur::Sayi) return Genel::SayiTusu(c).isNull();
    const QChar b = Genel::BuyukHarf(c);
    if (b == c) return false;
    if (!kutu->isReadOnly()) kutu->insert(QString(b));
    return true;
  }

 private:
  Tur tur_;
};

class EnterSuzgeci : public QObject {
 public:
  EnterSuzgeci(QObject* ust, std::function<void()> f) : QObject(ust), f_(std::move(f)) {}

 protected:
  bool eventFilter(QObject*, QEvent* e) override {
    if (e->type() == QEvent::KeyPress) {
      const int tus = static_cast<QKeyEvent*>(e)->key();
      if (tus == Qt::Key_Return || tus == Qt::Key_Enter) {
        f_();
        return true;
      }
    }
    return false;
  }

 private:
  std::function<void()> f_;
};

bool gAnlik = false;

struct Kayitlar {
  QHash<QString, Uretici> uretici;
  QHash<QString, QPointer<QWidget>> acik;
  QHash<QString, std::function<void()>> komut;
  Yerlestirici yerlestir;
  std::function<QWidget*()> ana;
};

Kayitlar& K() {
  static Kayitlar k;
  return k;
}

}  // namespace

void AyrilirkenKontrol(QWidget* kontrol, std::function<bool()> kontrolEt) {
  AyrilmaBekcisi::O().Ekle(kontrol, std::move(kontrolEt));
}

void KontrolTetiklemez(QWidget* kontrol) { kontrol->setProperty(kKontrolYok, true); }

bool KontrolCalistir(QWidget* kontrol) { return AyrilmaBekcisi::O().Calistir(kontrol); }

void SaltOkunur(QLineEdit* kutu, bool kilitli) {
  kutu->setReadOnly(kilitli);
  const QVariant onceki = kutu->property(kOdakKurali);
  if (kilitli) {
    if (!onceki.isValid()) kutu->setProperty(kOdakKurali, int(kutu->focusPolicy()));
    kutu->setFocusPolicy(Qt::NoFocus);
  } else if (onceki.isValid()) {
    kutu->setFocusPolicy(Qt::FocusPolicy(onceki.toInt()));
    kutu->setProperty(kOdakKurali, QVariant());
  }
  // A locked box shows the screen's colour, so that the clerk sees it is no
  // place to type.
  QPalette renk;
  if (kilitli) {
    renk = kutu->parentWidget() ? kutu->parentWidget()->palette() : kutu->palette();
    renk.setColor(QPalette::Base, renk.color(QPalette::Window));
  }
  kutu->setPalette(renk);
}

void MetinSec(QLineEdit* kutu) { kutu->setSelection(0, int(kutu->text().size())); }

void MetinSec(QWidget* ekran, const QString& kontrolAdi) {
  if (auto* kutu = ekran->findChild<QLineEdit*>(kontrolAdi)) MetinSec(kutu);
}

void MetinSecKur(QLineEdit* kutu) { kutu->installEventFilter(new OdakSecici(kutu)); }

void BuyukHarfKur(QLineEdit* kutu) {
  kutu->installEventFilter(new TusSuzgeci(kutu, TusSuzgeci::Tur::BuyukHarf));
}

void SayiTusuKur(QLineEdit* kutu) {
  kutu->installEventFilter(new TusSuzgeci(kutu, TusSuzgeci::Tur::Sayi));
}

void TarihKutusuKur(QLineEdit* kutu) {
  kutu->installEventFilter(new TusSuzgeci(kutu, TusSuzgeci::Tur::Tarih));
}

bool TarihDuzelt(QLineEdit* kutu) {
  QString metin = kutu->text();
  if (Genel::TarihTamamla(metin, QDate::currentDate())) {
    if (metin != kutu->text()) kutu->setText(metin);
    return true;
  }
  mesaj::Goster(QStringLiteral("Hatalı Tarih Bilgisi."), QStringLiteral("Giriş Hatası"),
                mesaj::Tur::Unlem);
  return false;
}

void TarihKutusu(QLineEdit* kutu) {
  MetinSecKur(kutu);
  TarihKutusuKur(kutu);
  AyrilirkenKontrol(kutu, [kutu] { return TarihKutusuKontrol(kutu); });
}

bool TarihKutusuKontrol(QLineEdit* kutu) {
  if (kutu->text().isEmpty()) return true;
  const QDate d = Genel::TarihCoz(kutu->text(), QDate::currentDate());
  if (d.isValid()) kutu->setText(Genel::TarihYaz(d));
  if (d.isValid() && d.year() >= 2000) return true;
  mesaj::Kritik(QStringLiteral("Hatalı Tarih"), QStringLiteral("Dikkat"));
  return false;
}

void EnterKur(QWidget* kutu, std::function<void()> islem) {
  kutu->installEventFilter(new EnterSuzgeci(kutu, std::move(islem)));
}

int Twip(int twip) { return (twip + 7) / 15; }  // 96 dots to the inch

void FormOrtala(QWidget* ekran, int yukseklik, int genislik, bool kaydirmaYok) {
  QWidget* cerceve = ekran;
  if (auto* alt = qobject_cast<QMdiSubWindow*>(ekran->parentWidget())) cerceve = alt;
  // The sizes were made for another font; a layout never gets less room than
  // it needs.
  QSize boy(Twip(genislik), Twip(yukseklik));
  boy = boy.expandedTo(cerceve->minimumSizeHint());
  if (cerceve != ekran) {
    const QSize cerceveFarki = cerceve->size() - ekran->size();
    boy = boy.expandedTo(ekran->minimumSizeHint() + cerceveFarki.expandedTo(QSize(0, 0)));
  }
  cerceve->resize(boy);
  QWidget* ana = cerceve->parentWidget();
  QSize alan = ana ? ana->size() : QSize();
  if (!ana) {
    if (QScreen* s = QGuiApplication::primaryScreen()) alan = s->availableGeometry().size();
  }
  const int solKay = kaydirmaYok ? 0 : Twip(200);
  const int ustKay = kaydirmaYok ? 0 : Twip(400);
  const int sol = alan.width() / 2 - cerceve->width() / 2 - solKay;
  const int ust = alan.height() / 2 - cerceve->height() / 2 - ustKay;
  cerceve->move(std::max(0, sol), std::max(0, ust));
}

BeklemeNotu::BeklemeNotu(const QString& metin) {
  QWidget* ana = AnaPencere();
  if (!ana || !ana->isVisible()) return;
  // A child of the main window: it takes no focus and no activation away.
  auto* l = new QLabel(metin, ana);
  l->setFrameStyle(QFrame::Box | QFrame::Plain);
  l->setMargin(24);
  l->setAutoFillBackground(true);
  l->adjustSize();
  l->move(ana->rect().center() - l->rect().center());
  l->show();
  l->raise();
  // Let the window come up and paint the note now: the step that follows
  // keeps the event loop busy.
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  not_ = l;
}

BeklemeNotu::~BeklemeNotu() { delete not_; }

void Bekle(int ms) {
  if (gAnlik || ms <= 0) {
    QCoreApplication::processEvents();
    return;
  }
  QElapsedTimer t;
  t.start();
  while (t.elapsed() < ms) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void BekleAnlik(bool anlik) { gAnlik = anlik; }

void Kaydet(const QString& ad, Uretici uretici) { K().uretici[ad] = std::move(uretici); }

bool KayitliMi(const QString& ad) { return K().uretici.contains(ad); }

QWidget* Acik(const QString& ad) {
  auto it = K().acik.find(ad);
  return it != K().acik.end() ? it.value().data() : nullptr;
}

bool AcikEkranVar() {
  for (const QPointer<QWidget>& w : K().acik)
    if (w) return true;
  return false;
}

bool EkranlariKapat() {
  bool hepsi = true;
  const QStringList adlar = K().acik.keys();
  for (const QString& ad : adlar) {
    QWidget* w = Acik(ad);
    if (!w) {
      K().acik.remove(ad);
      continue;
    }
    QWidget* cerceve = w;
    if (auto* alt = qobject_cast<QMdiSubWindow*>(w->parentWidget())) cerceve = alt;
    // Closed screens are deleted later; they no longer count as open now.
    if (cerceve->close())
      K().acik.remove(ad);
    else
      hepsi = false;
  }
  return hepsi;
}

namespace {

// A screen whose making or loading failed goes away whole, frame and all.
void Kaldir(const QString& ad, QWidget* w) {
  K().acik.remove(ad);
  if (!w) return;
  if (auto* alt = qobject_cast<QMdiSubWindow*>(w->parentWidget()))
    delete alt;
  else
    delete w;
}

}  // namespace

QWidget* Ac(const QString& ad) {
  if (QWidget* w = Acik(ad)) {
    QWidget* cerceve = w;
    if (auto* alt = qobject_cast<QMdiSubWindow*>(w->parentWidget())) cerceve = alt;
    cerceve->showNormal();
    cerceve->raise();
    cerceve->activateWindow();
    w->setFocus();
    return w;
  }
  auto it = K().uretici.find(ad);
  if (it == K().uretici.end()) return nullptr;
  QPointer<QWidget> w;
  try {
    w = it.value()();
    if (!w) return nullptr;
    w->setObjectName(ad);
    w->setAttribute(Qt::WA_DeleteOnClose);
    K().acik[ad] = w;
    if (K().yerlestir)
      K().yerlestir(w);
    else
      w->show();
    if (auto* f = qobject_cast<Form*>(w.data())) {
      f->Yukle();
      f->Form_Activate();
    }
  } catch (const db::Hata& h) {
    // The engine refused what the screen needs to open: the clerk is told,
    // the program goes on without the screen.
    Kaldir(ad, w);
    if (h.BaglantiYok())
      mesaj::Kritik(QStringLiteral("Veri tabanı açık değil. Ayarlarınızı kontrol edip programı "
                                   "yeniden başlatınız."),
                    QStringLiteral("HATA"));
    else
      HataGoster(h);
    return nullptr;
  }
  return w;
}

void KomutKaydet(const QString& ad, std::function<void()> komut) {
  K().komut[ad] = std::move(komut);
}

bool KomutVar(const QString& ad) { return K().komut.contains(ad); }

void KomutCalistir(const QString& ad) {
  auto it = K().komut.find(ad);
  if (it == K().komut.end()) return;
  try {
    it.value()();
  } catch (const db::Hata& h) {
    HataGoster(h);
  }
}

bool Hazir(const QString& ad) { return KomutVar(ad) || KayitliMi(ad); }

void AcVeyaCalistir(const QString& ad) {
  if (KomutVar(ad))
    KomutCalistir(ad);
  else
    Ac(ad);
}

void YerlestiriciKur(Yerlestirici y, std::function<QWidget*()> anaPencere) {
  K().yerlestir = std::move(y);
  K().ana = std::move(anaPencere);
}

QWidget* AnaPencere() { return K().ana ? K().ana() : nullptr; }

}  // namespace ekran
