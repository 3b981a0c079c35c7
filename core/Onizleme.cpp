#include "core/Onizleme.h"

#include <QDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

namespace onizleme {

QChar Cp857(uchar b) {
  static constexpr char16_t kUst[128] = {
      0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8,
      0x00EF, 0x00EE, 0x0131, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2,
      0x00FB, 0x00F9, 0x0130, 0x00D6, 0x00DC, 0x00F8, 0x00A3, 0x00D8, 0x015E, 0x015F, 0x00E1,
      0x00ED, 0x00F3, 0x00FA, 0x00F1, 0x00D1, 0x011E, 0x011F, 0x00BF, 0x00AE, 0x00AC, 0x00BD,
      0x00BC, 0x00A1, 0x00AB, 0x00BB, 0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x00C1, 0x00C2,
      0x00C0, 0x00A9, 0x2563, 0x2551, 0x2557, 0x255D, 0x00A2, 0x00A5, 0x2510, 0x2514, 0x2534,
      0x252C, 0x251C, 0x2500, 0x253C, 0x00E3, 0x00C3, 0x255A, 0x2554, 0x2569, 0x2566, 0x2560,
      0x2550, 0x256C, 0x00A4, 0x00BA, 0x00AA, 0x00CA, 0x00CB, 0x00C8, 0x20AC, 0x00CD, 0x00CE,
      0x00CF, 0x2518, 0x250C, 0x2588, 0x2584, 0x00A6, 0x00CC, 0x2580, 0x00D3, 0x00DF, 0x00D4,
      0x00D2, 0x00F5, 0x00D5, 0x00B5, 0xFFFD, 0x00D7, 0x00DA, 0x00DB, 0x00D9, 0x00EC, 0x00FF,
      0x00AF, 0x00B4, 0x00AD, 0x00B1, 0xFFFD, 0x00BE, 0x00B6, 0x00A7, 0x00F7, 0x00B8, 0x00B0,
      0x00A8, 0x00B7, 0x00B9, 0x00B3, 0x00B2, 0x25A0, 0x00A0};
  return b < 0x80 ? QChar(b) : QChar(kUst[b - 0x80]);
}

Yerlesim Yerlestir(const QByteArray& akis) {
  Yerlesim y;
  int sayfa = 0, satir = 0, yer = 0;
  bool sikisik = false, alticizili = false;
  const auto n = akis.size();
  for (qsizetype i = 0; i < n; ++i) {
    const uchar b = uchar(akis[i]);
    switch (b) {
      case '\r':
        yer = 0;
        break;
      case '\n':
        if (++satir == kSayfaSatiri) {
          satir = 0;
          ++sayfa;
        }
        break;
      case 12:  // to the top of the next form
        if (satir != 0) {
          satir = 0;
          ++sayfa;
        }
        break;
      case 15:
        sikisik = true;
        break;
      case 18:
        sikisik = false;
        break;
      case 8:
        yer = std::max(0, yer - (sikisik ? kSikisikAdim : kNormalAdim));
        break;
      case 27: {
        if (i + 1 >= n) break;
        const char komut = akis[++i];
        // Commands with one parameter byte; the rest have none here.
        if (QByteArrayView("-%WwxklQCJA3!").contains(komut) && i + 1 < n) {
          const uchar p = uchar(akis[++i]);
          if (komut == '-') alticizili = (p == 1 || p == '1');
        }
        break;
      }
      default:
        if (b < 32 || b == 127) break;  // other control bytes print nothing
        // A blank prints nothing but moves the head; an underline runs on.
        if (b != ' ' || alticizili)
          y.harfler.push_back({sayfa, satir, yer, Cp857(b), sikisik, alticizili});
        yer += sikisik ? kSikisikAdim : kNormalAdim;
        break;
    }
  }
  // The forms that carry something.
  y.sayfaSayisi = y.harfler.isEmpty() ? 1 : y.harfler.last().sayfa + 1;
  return y;
}

QString SatirMetni(const Yerlesim& y, int sayfa, int satir) {
  QString s;
  for (const Harf& h : y.harfler) {
    if (h.sayfa != sayfa || h.satir != satir) continue;
    const int sutun = h.yer / (h.sikisik ? kSikisikAdim : kNormalAdim);
    if (s.size() <= sutun) s += QString(sutun + 1 - s.size(), QLatin1Char(' '));
    s[sutun] = h.harf;
  }
  return s;
}

namespace {

// The forms one under another, at kNokta dots to the inch.
class Sayfalar : public QWidget {
 public:
  static constexpr int kNokta = 80;
  static constexpr int kKenar = 24;   // around each form
  static constexpr double kEn = 8.5;  // inches of a form
  static constexpr double kBoy = 11.0;

  explicit Sayfalar(Yerlesim y, QWidget* ust = nullptr) : QWidget(ust), y_(std::move(y)) {
    setObjectName(QStringLiteral("Sayfalar"));
    setFixedSize(int(kEn * kNokta) + 2 * kKenar,
                 y_.sayfaSayisi * (int(kBoy * kNokta) + kKenar) + kKenar);
    yazi_ = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    yazi_.setFamily(QStringLiteral("DejaVu Sans Mono"));
    yazi_.setPixelSize(kNokta / 6 - 2);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), QColor(128, 128, 128));
    const int en = int(kEn * kNokta), boy = int(kBoy * kNokta);
    for (int s = 0; s < y_.sayfaSayisi; ++s) {
      const QRect form(kKenar, kKenar + s * (boy + kKenar), en, boy);
      p.fillRect(form, Qt::white);
      // A faint line every sixth line (an inch), to count by.
      p.setPen(QColor(225, 235, 245));
      for (int i = 6; i < kSayfaSatiri; i += 6)
        p.drawLine(form.left(), form.top() + i * kNokta / 6, form.right(),
                   form.top() + i * kNokta / 6);
    }
    QFont sikisik = yazi_;
    sikisik.setStretch(kSikisikAdim * 100 / kNormalAdim);
    p.setPen(Qt::black);
    for (const Harf& h : y_.harfler) {
      QFont f = h.sikisik ? sikisik : yazi_;
      f.setUnderline(h.alticizili);
      p.setFont(f);
      const double x = kKenar + double(h.yer) * kNokta / kBirim;
      const double taban =
          kKenar + h.sayfa * (boy + kKenar) + (h.satir + 1) * double(kNokta) / 6 - 3;
      p.drawText(QPointF(x, taban), QString(h.harf));
    }
  }

 private:
  Yerlesim y_;
  QFont yazi_;
};

}  // namespace

void Goster(const baski::Sonuc& akis, const QString& baslik, QWidget* ust) {
  auto* d = new QDialog(ust);
  d->setObjectName(QStringLiteral("frmOnizleme"));
  d->setAttribute(Qt::WA_DeleteOnClose);
  d->setWindowTitle(QStringLiteral("Önizleme - ") + baslik);
  const Yerlesim y = Yerlestir(akis.baytlar);
  auto* alan = new QScrollArea;
  alan->setWidget(new Sayfalar(y));
  auto* bilgi = new QLabel(QStringLiteral("%1 satır, %2 sayfa. 10 karakter/inç (sıkışık 17), 6 "
                                          "satır/inç.")
                               .arg(akis.SatirSayisi())
                               .arg(y.sayfaSayisi));
  bilgi->setObjectName(QStringLiteral("lblBilgi"));
  auto* hata = new QLabel;
  hata->setObjectName(QStringLiteral("lblHata"));
  hata->setStyleSheet(QStringLiteral("color: #b00000"));
  hata->setWordWrap(true);
  if (akis.hata)
    hata->setText(QStringLiteral("Bir Hata Oluştu") + QLatin1Char('\n') + *akis.hata);
  else
    hata->hide();
  auto* kapat = new QPushButton(QStringLiteral("Kapat"));
  kapat->setObjectName(QStringLiteral("cmdKapat"));
  QObject::connect(kapat, &QPushButton::clicked, d, &QDialog::close);
  auto* alt = new QHBoxLayout;
  alt->addWidget(bilgi, 1);
  alt->addWidget(kapat);
  auto* duzen = new QVBoxLayout(d);
  duzen->addWidget(alan, 1);
  duzen->addWidget(hata);
  duzen->addLayout(alt);
  d->resize(Sayfalar::kEn * Sayfalar::kNokta + 80, 760);
  d->show();
}

}  // namespace onizleme
