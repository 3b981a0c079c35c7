#include "transfer/MaliyeSema.h"

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <QFile>
#include <memory>

namespace aktarim {

namespace {

// %1: the pattern of a computed amount in the variant.
const char* const kSema = R"XSD(<?xml version="1.0" encoding="UTF-8"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:simpleType name="m2"><xs:restriction base="xs:string"><xs:maxLength value="2"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m5"><xs:restriction base="xs:string"><xs:maxLength value="5"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m10"><xs:restriction base="xs:string"><xs:maxLength value="10"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m11"><xs:restriction base="xs:string"><xs:maxLength value="11"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m15"><xs:restriction base="xs:string"><xs:maxLength value="15"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m16"><xs:restriction base="xs:string"><xs:maxLength value="16"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m20"><xs:restriction base="xs:string"><xs:maxLength value="20"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m50"><xs:restriction base="xs:string"><xs:maxLength value="50"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="m52"><xs:restriction base="xs:string"><xs:maxLength value="52"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="gun"><xs:restriction base="xs:string"><xs:pattern value="[0-9]{8}"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="ilkodu"><xs:restriction base="xs:string"><xs:pattern value="[0-9]{2}"/></xs:restriction></xs:simpleType>
  <xs:simpleType name="toplam">
    <xs:restriction base="xs:string"><xs:maxLength value="18"/><xs:pattern value="%1"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="tutartl">
    <xs:restriction base="xs:string"><xs:maxLength value="18"/><xs:pattern value="(%1)?"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="tutarabd">
    <xs:restriction base="xs:string"><xs:maxLength value="14"/><xs:pattern value="(0|%1)?"/></xs:restriction>
  </xs:simpleType>

  <xs:complexType name="firmaAdres">
    <xs:sequence>
      <xs:element name="mahcadkapidaire" type="m50" minOccurs="0"/>
      <xs:element name="ilceadi" type="m15" minOccurs="0"/>
      <xs:element name="pk" type="m5" minOccurs="0"/>
      <xs:element name="iladi" type="m15"/>
      <xs:element name="ilkodu" type="ilkodu"/>
      <xs:element name="ulkekodu" type="xs:string" fixed="052"/>
    </xs:sequence>
  </xs:complexType>
  <xs:complexType name="kisiAdres">
    <xs:sequence>
      <xs:element name="mahcadkapidaire" type="m50" minOccurs="0"/>
      <xs:element name="ilceadi" type="m15" minOccurs="0"/>
      <xs:element name="pk" type="m5" minOccurs="0"/>
      <xs:element name="iladi" type="m15" minOccurs="0"/>
      <xs:element name="ilkodu" type="ilkodu"/>
      <xs:element name="ulkekodu" type="xs:string" fixed="052"/>
    </xs:sequence>
  </xs:complexType>

  <xs:element name="vimveritransferi">
    <xs:complexType>
      <xs:sequence>
        <xs:element name="protokol">
          <xs:complexType>
            <xs:sequence>
              <xs:element name="genel">
                <xs:complexType>
                  <xs:sequence>
                    <xs:element name="vkn" type="xs:string"/>
                    <xs:element name="unvan" type="m52"/>
                    <xs:element name="adres" type="firmaAdres"/>
                    <xs:element name="bilgidonem">
                      <xs:simpleType><xs:restriction base="xs:string"><xs:pattern value="[0-9]{6}-[0-9]{6}"/></xs:restriction></xs:simpleType>
                    </xs:element>
                    <xs:element name="bilgitarih" type="gun"/>
                    <xs:element name="gonkayitsayisi" type="xs:nonNegativeInteger"/>
                  </xs:sequence>
                  <xs:attribute name="kuruluskodu" type="xs:string" fixed="11" use="required"/>
                </xs:complexType>
              </xs:element>
              <xs:element name="ozel">
                <xs:complexType>
                  <xs:sequence>
                    <xs:element name="odvertoplamtutar" type="toplam"/>
                    <xs:element name="odtahtoplamtutar" type="toplam"/>
                  </xs:sequence>
                </xs:complexType>
              </xs:element>
            </xs:sequence>
          </xs:complexType>
        </xs:element>
        <xs:element name="kayitlar" minOccurs="0">
          <xs:complexType>
            <xs:sequence>
              <xs:element name="subebilgi">
                <xs:complexType>
                  <xs:sequence>
                    <xs:element name="subekodu" type="xs:string" fixed="0000000001"/>
                    <xs:element name="subeadi" type="xs:string" fixed="Merkez"/>
                    <xs:element name="kayit" maxOccurs="unbounded">
                      <xs:complexType>
                        <xs:sequence>
                          <xs:element name="kisi">
                            <xs:complexType>
                              <xs:sequence>
                                <xs:element name="vkn" type="m10"/>
                                <xs:element name="soyad" type="m20"/>
                                <xs:element name="ad" type="m16"/>
                                <xs:element name="babaadi" type="m16"/>
                                <xs:element name="adres" type="kisiAdres"/>
                                <xs:element name="tckn" type="m11"/>
                                <xs:element name="velivasi" minOccurs="0">
                                  <xs:complexType>
                                    <xs:sequence>
                                      <xs:element name="vkn" type="m10"/>
                                      <xs:element name="soyad" type="m20"/>
                                      <xs:element name="ad" type="m16"/>
                                    </xs:sequence>
                                    <xs:attribute name="hukukidurum" type="xs:positiveInteger" use="required"/>
                                  </xs:complexType>
                                </xs:element>
                              </xs:sequence>
                              <xs:attribute name="uyruk" use="required">
                                <xs:simpleType><xs:restriction base="xs:string"><xs:enumeration value="1"/><xs:enumeration value="2"/></xs:restriction></xs:simpleType>
                              </xs:attribute>
                              <xs:attribute name="hukukiyapi" use="required">
                                <xs:simpleType><xs:restriction base="xs:string"><xs:pattern value="[0-9]{2,}"/></xs:restriction></xs:simpleType>
                              </xs:attribute>
                            </xs:complexType>
                          </xs:element>
                          <xs:element name="islem" maxOccurs="unbounded">
                            <xs:complexType>
                              <xs:choice>
                                <xs:element name="odver">
                                  <xs:complexType>
                                    <xs:sequence>
                                      <xs:element name="soztar" type="gun"/>
                                      <xs:element name="sozno" type="m10"/>
                                      <xs:sequence minOccurs="0">
                                        <xs:element name="otutartl" type="tutartl"/>
                                        <xs:element name="otutarabd" type="tutarabd"/>
                                        <xs:element name="ftutartl" type="tutartl"/>
                                        <xs:element name="ftutarabd" type="tutarabd"/>
                                      </xs:sequence>
                                    </xs:sequence>
                                  </xs:complexType>
                                </xs:element>
                                <xs:element name="odtah">
                                  <xs:complexType>
                                    <xs:sequence>
                                      <xs:element name="odtar" type="gun"/>
                                      <xs:element name="tahtutartl" type="tutartl"/>
                                      <xs:element name="tahtutarabd" type="xs:string" fixed="0"/>
                                    </xs:sequence>
                                  </xs:complexType>
                                </xs:element>
                              </xs:choice>
                            </xs:complexType>
                          </xs:element>
                        </xs:sequence>
                      </xs:complexType>
                    </xs:element>
                  </xs:sequence>
                </xs:complexType>
              </xs:element>
            </xs:sequence>
          </xs:complexType>
        </xs:element>
      </xs:sequence>
    </xs:complexType>
  </xs:element>
</xs:schema>
)XSD";

struct IlkHata {
  QString metin;
};

void HataAl(void* veri, xmlErrorPtr e) {
  auto* ilk = static_cast<IlkHata*>(veri);
  if (!ilk->metin.isEmpty() || !e) return;
  ilk->metin = QStringLiteral("satır %1: %2")
                   .arg(e->line)
                   .arg(QString::fromUtf8(e->message ? e->message : "").trimmed());
}

struct SemaSil {
  void operator()(xmlSchemaParserCtxt* p) const { xmlSchemaFreeParserCtxt(p); }
  void operator()(xmlSchema* s) const { xmlSchemaFree(s); }
  void operator()(xmlSchemaValidCtxt* v) const { xmlSchemaFreeValidCtxt(v); }
};

}  // namespace

QByteArray SemaMetni(const Varyant& v) {
  const QString tutar = v.basamak > 0 ? QStringLiteral("-?[0-9]+\\.[0-9]{%1}").arg(v.basamak)
                                      : QStringLiteral("-?[0-9]+");
  return QString::fromUtf8(kSema).arg(tutar).toUtf8();
}

namespace {

using SemaPtr = std::unique_ptr<xmlSchema, SemaSil>;

// The schema of a variant, read; null with the reason in `ilk` when it can't be.
SemaPtr SemaOku(const Varyant& v, IlkHata& ilk) {
  xmlInitParser();
  const QByteArray sema = SemaMetni(v);
  std::unique_ptr<xmlSchemaParserCtxt, SemaSil> ayristirici(
      xmlSchemaNewMemParserCtxt(sema.constData(), int(sema.size())));
  if (!ayristirici) {
    ilk.metin = QStringLiteral("şema okunamadı");
    return nullptr;
  }
  xmlSchemaSetParserStructuredErrors(ayristirici.get(), HataAl, &ilk);
  SemaPtr s(xmlSchemaParse(ayristirici.get()));
  if (!s) ilk.metin = QStringLiteral("şema okunamadı: ") + ilk.metin;
  return s;
}

}  // namespace

QString SemayaUygunMu(const QString& yol, const Varyant& v) {
  IlkHata ilk;
  const SemaPtr s = SemaOku(v, ilk);
  if (!s) return ilk.metin;
  std::unique_ptr<xmlSchemaValidCtxt, SemaSil> dogrulayici(xmlSchemaNewValidCtxt(s.get()));
  if (!dogrulayici) return QStringLiteral("şema okunamadı");
  xmlSchemaSetValidStructuredErrors(dogrulayici.get(), HataAl, &ilk);
  // Faults of the parser itself (a file that is not well-formed) come
  // through the global handler.
  xmlSetStructuredErrorFunc(&ilk, HataAl);
  const int sonuc = xmlSchemaValidateFile(dogrulayici.get(), QFile::encodeName(yol).constData(), 0);
  xmlSetStructuredErrorFunc(nullptr, nullptr);
  if (sonuc == 0) return QString();
  return ilk.metin.isEmpty() ? QStringLiteral("dosya okunamadı") : ilk.metin;
}

namespace {

int Yer(void* ayristirici, const char** dosya, unsigned long* satir) {
  const xmlParserInput* girdi = static_cast<xmlParserCtxt*>(ayristirici)->input;
  if (!girdi) return -1;
  if (dosya) *dosya = girdi->filename;
  if (satir) *satir = static_cast<unsigned long>(girdi->line);
  return 0;
}

}  // namespace

struct SemaAkisi::Durum {
  IlkHata ilk;
  SemaPtr sema;
  std::unique_ptr<xmlSchemaValidCtxt, SemaSil> dogrulayici;
  xmlSAXHandler bos{};  // no handlers of our own: nothing is kept of the document
  xmlSAXHandler* sax = &bos;
  void* kullanici = nullptr;
  xmlSchemaSAXPlugStruct* tak = nullptr;
  xmlParserCtxt* ayristirici = nullptr;

  ~Durum() {
    if (ayristirici) xmlFreeParserCtxt(ayristirici);
    if (tak) xmlSchemaSAXUnplug(tak);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
  }
};

SemaAkisi::SemaAkisi(const Varyant& v, const QString& ad) : d_(std::make_unique<Durum>()) {
  d_->sema = SemaOku(v, d_->ilk);
  if (!d_->sema) return;
  d_->dogrulayici.reset(xmlSchemaNewValidCtxt(d_->sema.get()));
  if (!d_->dogrulayici) return;
  xmlSchemaSetValidStructuredErrors(d_->dogrulayici.get(), HataAl, &d_->ilk);
  xmlSetStructuredErrorFunc(&d_->ilk, HataAl);
  d_->bos.initialized = XML_SAX2_MAGIC;
  d_->tak = xmlSchemaSAXPlug(d_->dogrulayici.get(), &d_->sax, &d_->kullanici);
  if (!d_->tak) return;
  d_->ayristirici = xmlCreatePushParserCtxt(d_->sax, d_->kullanici, nullptr, 0,
                                            QFile::encodeName(ad).constData());
  if (!d_->ayristirici) return;
  // The faults name the line the parser stands on, as a check of the file
  // on the disk does.
  xmlSchemaValidateSetLocator(d_->dogrulayici.get(), Yer, d_->ayristirici);
}

SemaAkisi::~SemaAkisi() = default;

void SemaAkisi::Ekle(QByteArrayView parca) {
  // After the first fault the rest is not read.
  if (!d_->ayristirici || !d_->ilk.metin.isEmpty()) return;
  xmlParseChunk(d_->ayristirici, parca.data(), int(parca.size()), 0);
}

QString SemaAkisi::Bitir() {
  if (!d_->ayristirici)
    return d_->ilk.metin.isEmpty() ? QStringLiteral("şema okunamadı") : d_->ilk.metin;
  if (d_->ilk.metin.isEmpty()) xmlParseChunk(d_->ayristirici, nullptr, 0, 1);
  const bool gecerli = d_->ayristirici->wellFormed &&
                       xmlSchemaIsValid(d_->dogrulayici.get()) == 1 && d_->ilk.metin.isEmpty();
  if (gecerli) return QString();
  return d_->ilk.metin.isEmpty() ? QStringLiteral("dosya okunamadı") : d_->ilk.metin;
}

}  // namespace aktarim
