#include "persistence/document_check.h"
#include "persistence/document_scanner.h"
#include "persistence/foreign_content.h"
#include "persistence/utf8_repair.h"

#include <QStringConverter>

#include <tinyxml.h>

#include <gtest/gtest.h>

#include <random>

using namespace tc;

namespace {

std::string refusal(const QByteArray& bytes) {
  const OdTcCheckedDocument checked = checkDocument(bytes);
  EXPECT_EQ(checked.refusal.isEmpty(), !checked.text.isEmpty()) << bytes.left(80).toStdString();
  return checked.refusal.toStdString();
}

std::string repaired(const QByteArray& bytes) {
  const OdTcCheckedDocument checked = checkDocument(bytes);
  EXPECT_EQ(checked.refusal.toStdString(), "");
  return checked.text.toStdString();
}

std::string remark(const QByteArray& bytes) { return checkDocument(bytes).remark.toStdString(); }

QByteArray nested(int depth) {
  return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

TEST(DocumentCheck, LeavesAGoodDocumentAsItIs) {
  const char* const documents[] = {
      "<a/>",
      "<a b=\"1\" c='2' d = \"3\"/>",
      "<a><b>text &amp; &lt;&gt;&quot;&apos; &#65;&#x41;&#x10FFFF;</b></a>",
      "<a><!-- <b> & ]]> --><![CDATA[ <b> & ]] ]]></a>",
      "\xEF\xBB\xBF<a/>",
      "<!DOCTYPE a>\n<a/>\n",
      "<a b=\"<x></y>\">K\xC3\xBC"
      "che</a>",
      "<a b=c/>",
  };
  for (const char* document : documents) {
    EXPECT_EQ(repaired(document), document);
    EXPECT_EQ(remark(document), "") << document;
  }
}

struct Refused {
  QByteArray bytes;
  const char* reason;
};

TEST(DocumentCheck, RefusesWhatIsNoDocumentAndSaysWhere) {
  const Refused cases[] = {
      {"", "the file is empty"},
      {"   \n ", "line 2, column 2: this is no XML: there is no element"},
      {"no xml", "line 1, column 1: this is no XML: there is no element"},
      {"<!-- only this -->", "line 1, column 19: this is no XML: there is no element"},
      {"<a>\n<b>", "line 2, column 4: the element \"b\" is not closed"},
      {"<a><b></a></b>", "line 1, column 7: the element \"b\" is closed as \"a\""},
      {"<a/></a>", "line 1, column 5: \"a\" is closed but was not opened"},
      {"<a></a", "line 1, column 7: the element \"a\" is not closed"},
      {"<a></a ", "line 1, column 8: the end of the element \"a\" is broken"},
      {"<a></a x>", "line 1, column 8: the end of the element \"a\" is broken"},
      {"<a b=\"1", "line 1, column 4: an attribute of the element \"a\" is broken"},
      {"<a b", "line 1, column 4: an attribute of the element \"a\" is broken"},
      {"<a b=", "line 1, column 4: an attribute of the element \"a\" is broken"},
      {"<a b=x\"y\"/>", "line 1, column 4: an attribute of the element \"a\" is broken"},
      {"<a =\"1\"/>", "line 1, column 4: an attribute of the element \"a\" is broken"},
      {"<a", "line 1, column 3: the tag of the element \"a\" does not end"},
      {"<a b=\"1\"/x>", "line 1, column 9: the tag of the element \"a\" does not end"},
      {"<a><!-- x", "line 1, column 4: the comment does not end"},
      {"<a><![CDATA[ ]]", "line 1, column 4: the CDATA section does not end"},
      {"<a><? x", "line 1, column 4: the tag does not end"},
      {"<?xml version=\"1.0", "line 1, column 1: the XML declaration does not end"},
      {QByteArray("<a>\0</a>", 8), "line 1, column 4: a NUL byte"},
      {QByteArray("K\xC3\xBC\n<a", 6), "line 1, column 1: this is no XML: there is no element"},
  };
  for (const Refused& c : cases) EXPECT_EQ(refusal(c.bytes), c.reason) << c.bytes.toStdString();
}

TEST(DocumentCheck, NamesOtherEncodings) {
  const QString text = QStringLiteral("<Catalog/>");
  const auto bytesOf = [&](QStringConverter::Encoding encoding, bool mark) {
    QStringEncoder encoder(encoding, mark ? QStringConverter::Flag::WriteBom
                                          : QStringConverter::Flag::Default);
    return QByteArray(encoder(text));
  };
  for (const bool mark : {false, true}) {
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE})
      EXPECT_EQ(refusal(bytesOf(encoding, mark)), "its text is in UTF-16, and only UTF-8 is read");
    for (const auto encoding : {QStringConverter::Utf32LE, QStringConverter::Utf32BE})
      EXPECT_EQ(refusal(bytesOf(encoding, mark)), "its text is in UTF-32, and only UTF-8 is read");
  }
}

TEST(DocumentCheck, BoundsTheDepthOfElements) {
  EXPECT_EQ(refusal(nested(kMaxElementDepth)), "");
  EXPECT_NE(refusal(nested(kMaxElementDepth + 1)).find("nested more than 256 deep"),
            std::string::npos);
  EXPECT_NE(refusal(nested(100000)).find("nested more than 256 deep"), std::string::npos);
  EXPECT_NE(refusal(QByteArray("<a>").repeated(100000)).find("nested more than"),
            std::string::npos);
}

TEST(DocumentCheck, CountsOnlyElementsThatAreOpen) {
  EXPECT_EQ(refusal("<r>" + QByteArray("<a/>").repeated(100000) + "</r>"), "");
  EXPECT_EQ(refusal("<r>" + QByteArray("<a></a>").repeated(100000) + "</r>"), "");
  EXPECT_EQ(refusal("<r><!--" + QByteArray("<a>").repeated(1000) + "--></r>"), "");
  EXPECT_EQ(refusal("<r><![CDATA[" + QByteArray("<a>").repeated(1000) + "]]></r>"), "");
  EXPECT_EQ(refusal("<r a='" + QByteArray("<a>").repeated(1000) + "'/>"), "");
}

TEST(DocumentCheck, BoundsTheAttributesOfAnElement) {
  const auto with = [](int count) {
    QByteArray text = "<a";
    for (int i = 0; i < count; ++i) text += " a" + QByteArray::number(i) + "=\"\"";
    return text + "/>";
  };
  EXPECT_EQ(refusal(with(kMaxAttributes)), "");
  EXPECT_NE(refusal(with(kMaxAttributes + 1)).find("more than 512 attributes"), std::string::npos);
  EXPECT_NE(refusal(with(100000)).find("more than 512 attributes"), std::string::npos);
}

TEST(DocumentCheck, CutsTheDeclarationOut) {
  EXPECT_EQ(repaired("<?xml version=\"1.0\"?><a/>"), "<a/>");
  EXPECT_EQ(repaired("<?XML version='>' x=\"' version='\"?>\n<a/>"), "\n<a/>");
}

TEST(DocumentCheck, ReplacesBytesThatAreNoUtf8) {
  EXPECT_EQ(repaired("<a>K\xFC"
                     "che</a>"),
            "<a>K\xEF\xBF\xBD"
            "che</a>");
  EXPECT_EQ(remark("<a>\n K\xFC"
                   "che\xFC</a>"),
            "line 2, column 3: bytes that are no UTF-8 (2 in all)");
}

struct Utf8Case {
  const char* bytes;
  int bad;
};

TEST(Utf8Repair, KnowsEveryFormOfBadBytes) {
  const Utf8Case cases[] = {
      {"plain ASCII of more than eight bytes", 0},
      {"\xC2\x80 \xDF\xBF", 0},
      {"\xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80 \xEF\xBF\xBF", 0},
      {"\xF0\x90\x80\x80 \xF4\x8F\xBF\xBF", 0},
      {"\x80", 1},
      {"\xC0\xAF", 2},         // overlong
      {"\xE0\x80\xAF", 3},     // overlong
      {"\xF0\x80\x80\xAF", 4}, // overlong
      {"\xED\xA0\x80", 3},     // a surrogate
      {"\xF4\x90\x80\x80", 4}, // beyond U+10FFFF
      {"\xF8\x88\x80\x80\x80", 5},
      {"\xFE\xFF", 2},
      {"\xC3", 1},         // cut
      {"\xE2\x82", 2},     // cut
      {"\xF0\x9F\x98", 3}, // cut
      {"\xC3(", 1},
      {"12345678\xC3", 1},
  };
  for (const Utf8Case& c : cases) {
    const OdTcRepairedText result = repairUtf8(c.bytes);
    EXPECT_EQ(result.badBytes, c.bad) << c.bytes;
    EXPECT_EQ(result.text.count("\xEF\xBF\xBD"), c.bad) << c.bytes;
    EXPECT_EQ(repairUtf8(result.text).badBytes, 0) << c.bytes;
  }
}

TEST(DocumentCheck, PutsReplacementsForCharactersThatDoNotExist) {
  for (const char* reference : {"&#0;", "&#x0;", "&#xFFFFFFFF;", "&#xD800;", "&#xDFFF;",
                                "&#1114112;", "&#99999999999999999999999999;"}) {
    const QByteArray text = QByteArray("<a b=\"") + reference + "\">" + reference + "</a>";
    EXPECT_EQ(repaired(text), "<a b=\"\xEF\xBF\xBD\">\xEF\xBF\xBD</a>") << reference;
    EXPECT_NE(remark(text).find(reference), std::string::npos) << remark(text);
  }
}

TEST(DocumentCheck, LeavesUnknownReferencesInTheText) {
  EXPECT_EQ(repaired("<a>A & B &nbsp; &x &#; &#x; &#xZ; &#X41; &#65 &#x41</a>"),
            "<a>A &amp; B &amp;nbsp; &amp;x &amp;#; &amp;#x; &amp;#xZ; &amp;#X41; &amp;#65 "
            "&amp;#x41</a>");
  EXPECT_EQ(remark("<a>A & B</a>"), "");
  EXPECT_NE(remark("<a>&nbsp;</a>").find("\"&nbsp;\" is not known"), std::string::npos);
}

TEST(DocumentCheck, LeavesReferencesAloneWhereThereAreNone) {
  for (const char* text : {"<a><!-- &x; --></a>", "<a><![CDATA[&x;]]></a>", "<a b=&x;/>"})
    EXPECT_EQ(repaired(text), text);
}

TEST(DocumentCheck, LeavesOutWhatFollowsTheLastElement) {
  EXPECT_EQ(repaired("<a/>\ngarbage<b>"), "<a/>\n");
  EXPECT_NE(remark("<a/>\ngarbage").find("line 2, column 1"), std::string::npos);
  EXPECT_EQ(remark("<a/>\r\n"), "");
}

/// Depth of the tree, with a document's own level as 0.
int depthOf(const TiXmlNode& node) {
  int deepest = 0;
  for (const TiXmlElement* e = node.FirstChildElement(); e; e = e->NextSiblingElement())
    deepest = std::max(deepest, 1 + depthOf(*e));
  return deepest;
}

// What the check calls well-formed must be what the parser sees, or nesting could hide from it.
struct PassedOver {
  QByteArray bytes;
  QByteArray left;
};

TEST(DocumentCheck, LeavesOutWhatStandsInElementsThatArePassedOver) {
  const PassedOver cases[] = {
      {"<P><D><x/></D><b/></P>", "<P><D></D><b/></P>"},
      {"<P><D a=\"1\">text<x><y>1</y></x> more </D></P>", "<P><D a=\"1\">text</D></P>"},
      {"<P><a><D><![CDATA[<x/>]]><!-- <x> --><x/></D></a></P>",
       "<P><a><D><![CDATA[<x/>]]><!-- <x> --></D></a></P>"},
      {"<P><D><x><D><y/></D></x><D/></D><D><z/></D></P>", "<P><D></D><D></D></P>"},
      {"<P><D><x><![CDATA[</D></P>]]></x><!-- </D> --></D></P>", "<P><D></D></P>"},
      {"<P>a & b<D>c & d<x>e & f</x>g & h</D>i & j</P>",
       "<P>a &amp; b<D>c &amp; d</D>i &amp; j</P>"},
      // What has no content, stands elsewhere, has another name or holds what somebody looks for.
      {"<P><D/><D></D><D>1</D></P>", "<P><D/><D></D><D>1</D></P>"},
      {"<a><D><x/></D></a>", "<a><D><x/></D></a>"},
      {"<a><P/><D><x/></D></a>", "<a><P/><D><x/></D></a>"},
      {"<P><DD><x/></DD><d><x/></d></P>", "<P><DD><x/></DD><d><x/></d></P>"},
      {"<P><D>1 & 2<x><Wanted/>3 & 4</x></D>5 & 6</P>",
       "<P><D>1 &amp; 2<x><Wanted/>3 &amp; 4</x></D>5 &amp; 6</P>"},
  };
  constexpr std::string_view kElements[] = {"E", "D"};
  constexpr std::string_view kWanted[] = {"Wanted"};
  const OdTcPassedOver passedOver = {kElements, "P", kWanted};
  for (const PassedOver& c : cases) {
    const OdTcCheckedDocument checked = checkDocument(c.bytes, &passedOver);
    EXPECT_EQ(checked.refusal.toStdString(), "") << c.bytes.toStdString();
    EXPECT_EQ(checked.text.toStdString(), c.left.toStdString());
  }
}

TEST(DocumentCheck, RefusesWhatIsBrokenWhereItIsPassedOver) {
  constexpr std::string_view kElements[] = {"D"};
  const OdTcPassedOver passedOver = {kElements, "P", {}};
  for (const char* const document :
       {"<P><D><x></D></P>", "<P><D><x/>", "<P><D><x y/></D></P>", "<P><D><x/></P></D>"})
    EXPECT_NE(checkDocument(document, &passedOver).refusal.toStdString(), "") << document;
  const QByteArray deep = "<P><D>" + nested(kMaxElementDepth) + "</D></P>";
  EXPECT_NE(checkDocument(deep, &passedOver).refusal.toStdString(), "");
  const OdTcCheckedDocument remarked = checkDocument("<P><D><x>&uuml;</x></D></P>", &passedOver);
  EXPECT_NE(remarked.remark.toStdString(), "");
  EXPECT_EQ(remarked.text.toStdString(), "<P><D></D></P>");
}

constexpr std::string_view kPlainAttributes[] = {"b", "c"};
constexpr OdTcPlainElement kPlainElements[] = {{"J", "y", {}}, {"I", "x", kPlainAttributes}};
const OdTcDeferral kDeferral = {kPlainElements, "E"};

struct Deferred {
  QByteArray bytes;
  QByteArray left;
  std::vector<QByteArray> pieces;
};

TEST(DocumentCheck, HandsOutWhatStandsInElementsThatAreDeferred) {
  const Deferred cases[] = {
      {"<P><I a=\"1\"><x b=\"2\" c=\"3\"/></I><d/></P>",
       "<P><I a=\"1\">0</I><d/></P>",
       {"<x b=\"2\" c=\"3\"/>"}},
      {"<P><I><x b=\"1\"/>\n<x b=\"2\"/></I><a><J><y/></J></a></P>",
       "<P><I>0</I><a><J>1</J></a></P>",
       {"<x b=\"1\"/>\n<x b=\"2\"/>", "<y/>"}},
      {"<I>\t<x/>\n</I>", "<I>0</I>", {"\t<x/>\n"}},
      {"<I>" + QByteArray(256, ' ') + "<x/></I>", "<I>0</I>", {QByteArray(256, ' ') + "<x/>"}},
      // References are put right outside of them, and stay as they are inside.
      {"<P>a & b<I><x c=\"&uuml; &amp; d & e\"/></I>f & g</P>",
       "<P>a &amp; b<I>0</I>f &amp; g</P>",
       {"<x c=\"&uuml; &amp; d & e\"/>"}},
      // Nothing to read, and other names.
      {"<P><I/><I a=\"1\"></I><I> \n </I></P>", "<P><I/><I a=\"1\"></I><I> \n </I></P>", {}},
      {"<P><i><x/></i><II><x/></II></P>", "<P><i><x/></i><II><x/></II></P>", {}},
  };
  for (const Deferred& c : cases) {
    const OdTcCheckedDocument checked = checkDocument(c.bytes, nullptr, kDeferral);
    EXPECT_EQ(checked.refusal.toStdString(), "") << c.bytes.toStdString();
    EXPECT_EQ(checked.text.toStdString(), c.left.toStdString());
    EXPECT_EQ(checked.deferred, c.pieces) << c.bytes.toStdString();
  }
}

TEST(DocumentCheck, DefersNothingIfOnePieceIsNotPlain) {
  const QByteArray odd[] = {
      "<I>1</I>",
      "<I><x/>1</I>",
      "<I>0<x/></I>",
      "<I><x></x></I>",
      "<I><x>1</x></I>",
      "<I><x><x/></x></I>",
      "<I><I><x/></I></I>",
      "<I><y/></I>",
      "<J><x/></J>",
      "<I><x d=\"1\"/></I>",
      "<I><x B=\"1\"/></I>",
      "<I><x b=\"1\" c=\"2\" b=\"3\"/></I>",
      "<J><y b=\"1\"/></J>",
      "<I><!-- --><x/></I>",
      "<I><![CDATA[1]]></I>",
      "<I><?xml?><x/></I>",
      "<I><?x?></I>",
      "<I>\xC2\xA0<x/></I>",
      "<I>" + QByteArray(257, ' ') + "<x/></I>",
      "<E/>",
      "<a><E b=\"1\">c</E></a>",
  };
  for (const QByteArray& content : odd)
    for (const QByteArray& document :
         {"<P><I><x/></I>" + content + "</P>", "<P>" + content + "<I><x/></I></P>"}) {
      const OdTcCheckedDocument checked = checkDocument(document, nullptr, kDeferral);
      EXPECT_TRUE(checked.deferred.empty()) << document.toStdString();
      EXPECT_EQ(checked.text, checkDocument(document).text);
      EXPECT_EQ(checked.refusal.toStdString(), "") << document.toStdString();
      EXPECT_EQ(checked.remark, checkDocument(document).remark);
    }
}

TEST(DocumentCheck, RefusesWhatIsBrokenWhereItIsDeferred) {
  for (const char* const document :
       {"<P><I><x></I></P>", "<P><I><x/>", "<P><I><x y/></I></P>", "<P><I><x/></P></I>",
        "<P><I>1</I><I><x></I></P>", "<P><I><x/></I"}) {
    const OdTcCheckedDocument checked = checkDocument(document, nullptr, kDeferral);
    EXPECT_NE(checked.refusal.toStdString(), "") << document;
    EXPECT_EQ(checked.refusal, checkDocument(document).refusal) << document;
    EXPECT_TRUE(checked.deferred.empty()) << document;
  }
  const OdTcCheckedDocument remarked =
      checkDocument("<P>\n<I><x b=\"&uuml;\"/></I></P>", nullptr, kDeferral);
  EXPECT_TRUE(remarked.remark.contains(QStringLiteral("line 2"))) << remarked.remark.toStdString();
}

TEST(DocumentCheck, OfDynamicBlocksTheParserSeesNothingButTheirTools) {
  const QByteArray tree = "<Dictionary handle=\"1\"><Xrecord><Resbuf code=\"70\">12</Resbuf>"
                          "</Xrecord></Dictionary>";
  const auto palette = [](const QByteArray& data) {
    return "<ToolPaletteExport><Palette><Tools><Tool><Data>" + data +
           "</Data></Tool></Tools></Palette></ToolPaletteExport>";
  };
  for (const QByteArray name : {"DynamicProperties", "ExtensionDictionary"}) {
    const auto in = [&name](const QByteArray& inner) {
      return "<Block><BlockName>A</BlockName></Block><" + name + ">" + inner + "</" + name + ">";
    };
    EXPECT_EQ(checkDocument(palette(in(tree.repeated(1000))), &treesOfOthers()).text,
              palette(in({})));
    for (const char* const wanted : {"<CommandString>_A</CommandString>", "<PaletteContent/>"})
      EXPECT_EQ(checkDocument(palette(in(tree + wanted)), &treesOfOthers()).text,
                palette(in(tree + wanted)));
  }
}

TEST(DocumentCheck, SeesTheSameTreeAsTheParser) {
  constexpr std::string_view kPieces[] = {"<a>",
                                          "</a>",
                                          "<a/>",
                                          "<b c='d'>",
                                          "</b>",
                                          "<!--",
                                          "-->",
                                          "<![CDATA[",
                                          "]]>",
                                          "<?",
                                          "?>",
                                          "<?xml",
                                          " version='",
                                          "'",
                                          "\"",
                                          "=",
                                          " ",
                                          "<!X",
                                          ">",
                                          "/",
                                          "text",
                                          "&amp;",
                                          "&",
                                          "&#x1;",
                                          "\xC3",
                                          "<",
                                          "\xEF\xBB\xBF",
                                          "<\xC3\xBC>",
                                          "</\xC3\xBC>",
                                          "<a b=c>",
                                          "<a b=\"<\">",
                                          "<1>",
                                          "encoding=\">\"",
                                          "<a b='1' b='2'>"};
  std::mt19937 random(20261121);
  std::uniform_int_distribution<std::size_t> pick(0, std::size(kPieces) - 1);
  std::uniform_int_distribution<int> length(1, 14);
  int accepted = 0;
  for (int i = 0; i < 60000; ++i) {
    QByteArray text = i % 2 ? "<a>" : "";
    for (int n = length(random); n > 0; --n) {
      const std::string_view piece = kPieces[pick(random)];
      text.append(piece.data(), static_cast<qsizetype>(piece.size()));
    }
    if (i % 2) text += "</a>";
    const OdTcCheckedDocument checked = checkDocument(text);
    if (!checked.refusal.isEmpty()) continue;
    OdTcDocumentScanner scanner(checked.text);
    ASSERT_TRUE(scanner.scan()) << text.toStdString();
    TiXmlDocument document;
    TiXmlBase::SetCondenseWhiteSpace(false);
    document.Parse(checked.text.constData(), nullptr, TIXML_ENCODING_UTF8);
    const bool isDoubleAttribute = text.contains("b='1' b='2'");
    if (isDoubleAttribute) continue;
    ++accepted;
    ASSERT_FALSE(document.Error()) << text.toStdString() << ": " << document.ErrorDesc();
    ASSERT_EQ(depthOf(document), scanner.deepest()) << text.toStdString();
  }
  EXPECT_GT(accepted, 1000);
}

} // namespace
