// Packages of the office profile: what may be a template, what comes along, and when the file appears.

#include "vellox/check/PackageCheck.h"

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/tree/Picture.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

class OfficePackageTest : public DeckTest {
protected:
    TemplateBuilder builder;
};

// The parts of a template with macros, a signature and a thumbnail that a slide shows too.
Parts withExtras(Parts parts) {
    const auto add = [&](const std::string& table, const std::string& type, const std::string& target) {
        std::string& rows = parts[table];
        if (rows.empty())
            rows = "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>"
                   "</Relationships>";
        rows.insert(rows.rfind("</"), "<Relationship Id='x" + std::to_string(rows.size()) + "' Type='" +
                                          type + "' Target='/" + target + "'/>");
        parts[target] = target;
    };
    const std::string microsoft = "http://schemas.microsoft.com/office/2006/relationships/";
    const std::string package = "http://schemas.openxmlformats.org/package/2006/relationships/";
    add("ppt/_rels/presentation.xml.rels", microsoft + "vbaProject", "ppt/vbaProject.bin");
    add("ppt/_rels/vbaProject.bin.rels", microsoft + "vbaProjectSignature", "ppt/vbaProjectSignature.bin");
    add("_rels/.rels", package + "digital-signature/origin", "_xmlsignatures/origin.sigs");
    add("_xmlsignatures/_rels/origin.sigs.rels", package + "digital-signature/signature",
        "_xmlsignatures/sig1.xml");
    add("_rels/.rels", package + "metadata/thumbnail", "docProps/thumbnail.jpeg");
    add("_rels/.rels", package + "metadata/thumbnail", "ppt/media/shared.jpeg");
    add("ppt/slideLayouts/_rels/slideLayout1.xml.rels",
        "http://schemas.openxmlformats.org/officeDocument/2006/relationships/image", "ppt/media/shared.jpeg");
    std::string& types = parts["[Content_Types].xml"];
    types.insert(types.find("<Override"),
                 "<Default Extension='bin' ContentType='application/vnd.ms-office.vbaProject'/>"
                 "<Default Extension='sigs' ContentType='application/x-sigs'/>"
                 "<Override PartName='/_xmlsignatures/sig1.xml' ContentType='application/x-sig+xml'/>");
    const std::string plain = "vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
    const std::size_t main = types.find(plain);
    types.replace(main, plain.size(), "vnd.ms-powerpoint.presentation.macroEnabled.main+xml");
    if (types.find("Extension='jpeg'") == std::string::npos && types.find("\"jpeg\"") == std::string::npos)
        types.insert(types.find("<Override"), "<Default Extension='jpeg' ContentType='image/jpeg'/>");
    return parts;
}

// Every name of a document that has one of the usual prefixes gets another, and one of these something else to mean.
std::string withOtherPrefixes(std::string xml) {
    const auto replaceAll = [&](const std::string& from, const std::string& to) {
        for (std::size_t at = xml.find(from); at != std::string::npos; at = xml.find(from, at + to.size()))
            xml.replace(at, from.size(), to);
    };
    for (const auto& [from, to] : {std::pair("p:", ""), std::pair("a:", "draw:"), std::pair("r:", "a:")})
        for (const std::string before : {"<", "</", " "})
            replaceAll(before + from, before + to);
    replaceAll("xmlns:p=", "xmlns=");
    replaceAll("xmlns:r=", "xmlns:X=");
    replaceAll("xmlns:a=", "xmlns:draw=");
    replaceAll("xmlns:X=", "xmlns:a=");
    const std::size_t root = xml.find(" xmlns=");
    xml.insert(root,
               " xmlns:p='urn:other' xmlns:mc='http://schemas.openxmlformats.org/markup-compatibility/2006'"
               " mc:Ignorable='p' p:note='1'");
    return xml;
}

TEST_F(OfficePackageTest, TheFormerFileStaysUntilTheDeckIsWhole) {
    writeFile(output, "last week's");
    writeParts(folder / L"t.pptx", getTemplateParts());
    const Texts before = folder.list();
    const auto expectUntouched = [&] {
        EXPECT_EQ(readFile(output), "last week's");
        EXPECT_EQ(folder.list(), before);
    };
    {
        Presentation forgotten = Presentation::forOffice(output, folder / L"t.pptx");
        forgotten.add(L"Title Only").replace(L"Title", L"forgotten");
        expectUntouched();
    }
    expectUntouched();
    Presentation failing = Presentation::forOffice(output, folder / L"t.pptx");
    failing.add(L"Blank").add(Picture(folder / L"none.png"));
    EXPECT_EQ(errorOf([&] { failing.close(); }).substr(0, 28), "ppt_error:missingPictureFile");
    expectUntouched();
    const boost::shared_ptr<PPTObject> copy = failing.clone();
    EXPECT_TRUE(static_cast<Presentation&>(*copy).close()); // a copy writes nothing
    expectUntouched();

    // Over their own template, and the last of two wins.
    deck = Presentation::forOffice(folder / L"t.pptx", folder / L"t.pptx");
    deck.add(L"Title Only").replace(L"Title", L"one");
    Presentation other = Presentation::forOffice(folder / L"t.pptx", folder / L"t.pptx");
    other.add(L"Title Only").replace(L"Title", L"two");
    EXPECT_TRUE(deck.close());
    EXPECT_TRUE(other.close() && !other.close());
    EXPECT_TRUE(findFaults(folder / L"t.pptx").empty());
    EXPECT_EQ(runsOf(readParts(folder / L"t.pptx").at("ppt/slides/slide1.xml")), "two");
    EXPECT_EQ(folder.list(), before);
}

TEST_F(OfficePackageTest, OutputsThatCantBeAreToldAtOnce) {
    std::filesystem::create_directory(folder.getPath() / "d.pptx");
    EXPECT_EQ(errorOf([&] { Presentation::forOffice(folder / L"d.pptx").open(); }).substr(0, 24),
              "ppt_error:cannotOpenFile");
    // What is wrong with a template is no reason not to try again.
    writeFile(folder / L"t.pptx", "no archive");
    deck = Presentation::forOffice(output, folder / L"t.pptx");
    EXPECT_EQ(errorOf([&] { deck.open(); }).substr(0, 24), "ppt_error:cannotOpenFile");
    writeParts(folder / L"t.pptx", getTemplateParts());
    deck.add(L"Blank");
    close();
}

TEST_F(OfficePackageTest, MacrosGoWhereTheyMayAndSignaturesNowhere) {
    writeParts(folder / L"t.pptm", withExtras(getTemplateParts()));
    const auto make = [&](const wchar_t* name) {
        deck = Presentation::forOffice(folder / name, folder / L"t.pptm");
        deck.add(L"Blank");
        EXPECT_TRUE(deck.close());
        EXPECT_TRUE(findFaults(folder / name).empty());
        const Parts parts = readParts(folder / name);
        for (const char* gone : {"_xmlsignatures/origin.sigs", "_xmlsignatures/sig1.xml",
                                 "_xmlsignatures/_rels/origin.sigs.rels", "docProps/thumbnail.jpeg"})
            EXPECT_EQ(parts.count(gone), 0u) << gone;
        EXPECT_EQ(parts.at("[Content_Types].xml").find("sig1"), std::string::npos);
        EXPECT_EQ(parts.at("_rels/.rels").find("thumbnail"), std::string::npos);
        EXPECT_EQ(parts.count("ppt/media/shared.jpeg"), 1u); // a layout shows it
        return parts;
    };
    const auto codes = [&] {
        Texts found;
        for (const Finding& finding : deck.getFindings())
            found.push_back(finding.code);
        return found;
    };
    Parts parts = make(L"plain.pptx");
    EXPECT_EQ(codes(), (Texts{"macrosLeftOut", "signaturesRemoved"}));
    EXPECT_EQ(parts.count("ppt/vbaProject.bin") + parts.count("ppt/vbaProjectSignature.bin"), 0u);
    EXPECT_EQ(parts.at("ppt/_rels/presentation.xml.rels").find("vba"), std::string::npos);
    EXPECT_EQ(parts.at("[Content_Types].xml").find("macroEnabled"), std::string::npos);
    parts = make(L"show.ppsm");
    EXPECT_EQ(codes(), Texts{"signaturesRemoved"});
    EXPECT_EQ(parts.count("ppt/vbaProject.bin") + parts.count("ppt/vbaProjectSignature.bin"), 2u);
    EXPECT_NE(parts.at("[Content_Types].xml").find("slideshow.macroEnabled"), std::string::npos);
}

// What is written is checked on its way: the template makes it unsound here, as a fault of ours would.
TEST_F(OfficePackageTest, WhatIsUnsoundIsTold) {
    builder.addMaster("Master");
    Page& layout = builder.addLayout("Own", shape(2, "Words", "<p:ph type='body'/>"));
    builder.addSlide("Made", layout, shape(7, "Odd", "<p:odd/>"));
    const auto tell = [&](const Parts& parts, const wchar_t* profile) {
        useTemplate(parts);
        deck.setProfile(profile);
        deck.add(L"Own").replace(L"Words", L"x");
        EXPECT_TRUE(deck.close());
        Texts found;
        for (const Finding& finding : deck.getFindings())
            if (finding.code == "unsoundPart" || finding.code == "doubtfulPart")
                found.push_back(std::to_string(finding.slide) + " " + toUtf8(finding.text));
        return found;
    };
    const Parts parts = builder.build();
    EXPECT_EQ(tell(parts, L"classic"), Texts());
    const Texts told = tell(parts, L"office");
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0],
              "1 /ppt/slides/slide1.xml isn't as programs expect it, and some may want to repair the file: "
              "Odd: p:odd isn't allowed in p:nvPr");
    // What new slides have of a layout, and other parts that are written.
    const char kLayout[] = "ppt/slideLayouts/slideLayout1.xml";
    EXPECT_EQ(
        tell(withChange(parts, kLayout, "<p:cNvPr id='2'", "<p:cNvPr id='2' odd='1'"), L"office").size(), 2u);
    EXPECT_EQ(
        tell(withChange(parts, "ppt/presentation.xml", "<p:sldSz", "<p:sldSz odd='1'"), L"office").size(),
        2u);

    TemplateBuilder other;
    other.addMaster("Master");
    other.addLayout("Own", shape(2, "Words", "<p:ph type='body'/>"));
    Parts orphan = other.build();
    orphan.erase("ppt/slideLayouts/_rels/slideLayout1.xml.rels");
    EXPECT_EQ(
        tell(orphan, L"office"),
        Texts{"0 /ppt/slideLayouts/slideLayout1.xml isn't as programs expect it, and some may want to repair "
              "the file: it leads to no slide master"});

    // A strict presentation leaves what is there.
    writeFile(output, "last week's");
    useTemplate(parts);
    deck.setProfile(L"office");
    deck.setStrict(true);
    deck.open();
    EXPECT_EQ(errorOf([&] { deck.close(); }).substr(0, 24), "ppt_error:notAsAsked sli");
    EXPECT_EQ(readFile(output), "last week's");
}

TEST_F(OfficePackageTest, NamesOfDevicesAreTold) {
    for (const auto& [name, isTold] :
         {std::pair(L"con.pptx", true), std::pair(L"LPT1.pptx", true), std::pair(L"nul .old.pptx", true),
          std::pair(L"control-valve.pptx", false), std::pair(L"com.pptx", false),
          std::pair(L"lpt10.pptx", false)}) {
        deck = Presentation(folder / name);
        deck.setProfile(L"office");
        deck.add(L"Blank");
        EXPECT_TRUE(deck.close());
        EXPECT_TRUE(findFaults(folder / name).empty());
        EXPECT_EQ(deck.getFindings().size(), isTold ? 1u : 0u) << toUtf8(name);
        if (isTold) {
            EXPECT_EQ(deck.getFindings()[0].code, "deviceFileName");
        }
    }
}

TEST_F(OfficePackageTest, PropertiesTellOfTheDeck) {
    const std::string core =
        "<c:coreProperties xmlns:c='http://schemas.openxmlformats.org/package/2006/metadata/core-properties' "
        "xmlns:d='http://purl.org/dc/elements/1.1/' xmlns:t='http://purl.org/dc/terms/' "
        "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'><d:title>Corporate</d:title>"
        "<d:creator>Somebody</d:creator><c:lastModifiedBy>Other</c:lastModifiedBy><c:category>Kept</"
        "c:category>"
        "<t:created xsi:type='t:W3CDTF'>1999-01-01T00:00:00Z</t:created></c:coreProperties>";
    const std::string app =
        "<Properties xmlns='http://schemas.openxmlformats.org/officeDocument/2006/extended-properties'>"
        "<Words>77</Words><Application>Program</Application><Slides>9</Slides></Properties>";
    Parts source = getTemplateParts();
    source.at("docProps/core.xml") = core;
    source.at("docProps/app.xml") = app;
    const auto make = [&](const wchar_t* profile, const wchar_t* author) {
        useTemplate(source);
        deck.setProfile(profile);
        deck.add(L"Blank");
        if (author) {
            deck.setAuthor(author);
            deck.setTitle(L"Weekly & more");
        }
        return close();
    };
    const auto coreText = [](const Parts& parts, const char* element) {
        const std::vector<std::string> found = textsOf(parts.at("docProps/core.xml"), element);
        return found.size() == 1 ? found[0] : std::string("-");
    };
    EXPECT_EQ(make(L"classic", nullptr).at("docProps/core.xml"), core);
    Parts parts = make(L"classic", L"Me");
    EXPECT_EQ(coreText(parts, "dc:title") + coreText(parts, "dc:creator"), "Weekly & moreMe");
    EXPECT_EQ(coreText(parts, "dcterms:created"), "1999-01-01T00:00:00Z");
    EXPECT_EQ(parts.at("docProps/app.xml"), app);
    parts = make(L"office", nullptr);
    EXPECT_EQ(coreText(parts, "dc:title") + coreText(parts, "cp:category"), "CorporateKept");
    EXPECT_EQ(coreText(parts, "dc:creator") + coreText(parts, "cp:lastModifiedBy"), "--");
    EXPECT_EQ(coreText(parts, "dcterms:created"), coreText(parts, "dcterms:modified"));
    EXPECT_GT(coreText(parts, "dcterms:created"), "2020");
    EXPECT_EQ(textsOf(parts.at("docProps/app.xml"), "Slides"), Texts{"1"});
    EXPECT_TRUE(findAll(parts.at("docProps/app.xml"), "Words").empty());
    // There may be one such part, however it is named.
    const std::string usual = "package/2006/relationships/metadata/core-properties";
    const Parts former =
        std::exchange(source, withChange(source, "_rels/.rels", usual,
                                         "officedocument/2006/relationships/metadata/core-properties"));
    parts = make(L"office", L"Me");
    EXPECT_EQ(coreText(parts, "dc:creator"), "Me");
    EXPECT_EQ(parts.at("_rels/.rels").find(usual), std::string::npos);
    source = former;
    // Without any, or with what can't be read, it has new ones.
    source.at("docProps/core.xml") = "no XML";
    EXPECT_EQ(coreText(make(L"office", L"Me"), "cp:lastModifiedBy"), "Me");
    source.erase("docProps/core.xml");
    EXPECT_EQ(coreText(make(L"office", L"Me"), "dc:creator"), "Me");
}

TEST_F(OfficePackageTest, RefusedTemplatesAreToldWhy) {
    const auto expectReason = [&](const Parts& parts, const std::string& reason) {
        writeParts(folder / L"t.pptx", parts);
        const std::string path = ": " + toUtf8(folder / L"t.pptx");
        EXPECT_EQ(errorOf([&] { Presentation::forOffice(output, folder / L"t.pptx").open(); }),
                  "ppt_error:invalidTemplate " + reason + path);
        EXPECT_EQ(errorOf([&] { Presentation(output, folder / L"t.pptx").open(); }),
                  "ppt_error:invalidTemplate " + path.substr(2));
    };
    const auto withMainType = [](const std::string& type) {
        return withChange(getTemplateParts(), "[Content_Types].xml", "presentationml.presentation.main",
                          type);
    };
    expectReason(withMainType("wordprocessingml.document.main"), "it is a text document");
    expectReason(withMainType("spreadsheetml.sheet.main"), "it is a workbook");
    const std::string relationships = "schemas.openxmlformats.org/officeDocument/2006/relationships";
    expectReason(withChange(getTemplateParts(), "_rels/.rels", relationships + "/officeDocument",
                            "purl.oclc.org/ooxml/officeDocument/relationships/officeDocument"),
                 "it is in the strict form of Office Open XML, and has to be saved in the transitional one");
    expectReason(withChange(getTemplateParts(), "_rels/.rels", "/officeDocument\"", "/other\""),
                 "it has no main part");
    builder.addMaster("Theme");
    Page& layout = builder.addLayout("Own");
    builder.addSlide("Slide", layout);
    expectReason(withChange(builder.build(), "ppt/slides/_rels/slide1.xml.rels", "slideLayout'", "other'"),
                 "its slide /ppt/slides/slide1.xml has no layout");
    expectReason(
        withChange(builder.build(), "ppt/slideLayouts/_rels/slideLayout1.xml.rels", "slideMaster'", "other'"),
        "the layout of its slide /ppt/slides/slide1.xml has no slide master");
}

TEST_F(OfficePackageTest, NamesCountByTheirNamespaces) {
    builder.addMaster("Theme", shape(2, "Master title", "<p:ph type='title'/>", place(1, 2, 3, 4)));
    Page& layout = builder.addLayout("Own", shape(2, "Title", "<p:ph type='title'/>") +
                                                shape(3, "Picture", "<p:ph type='pic' idx='4'/>"));
    builder.addSlide("Slide", layout, shape(2, "Old title", "<p:ph type='title'/>"));
    Parts parts = builder.build();
    for (auto& [name, bytes] : parts)
        if (name.find("rels") == std::string::npos && name.find("ppt/") == 0)
            bytes = withOtherPrefixes(bytes);
    useTemplate(parts);
    deck.setProfile(L"office");
    EXPECT_EQ(deck.getMasterNames(), std::vector<std::wstring>{L"Theme"});
    deck.replace(L"Old title", L"changed");
    writeFile(folder / L"p.png", makePng(3, 4));
    Slide slide = deck.add(L"Own");
    slide.replace(L"Title", L"Words");
    slide.replace(L"Picture", object(Picture(folder / L"p.png")));
    close();
    EXPECT_EQ(runsOf(slideXml(1)), "changed");
    EXPECT_EQ(runsOf(slideXml(2)), "Words");
    EXPECT_EQ(findAll(slideXml(2), "p:pic").size(), 1u);
    EXPECT_EQ(valuesOf(slideXml(1), "p:sld", "xmlns:p1"), Texts{"urn:other"});
    EXPECT_EQ(valuesOf(slideXml(1), "p:sld", "mc:Ignorable"), Texts{"p1"});
    EXPECT_EQ(valuesOf(slideXml(1), "p:sld", "p1:note"), Texts{"1"});
    for (const Finding& finding : checkPackage(output))
        EXPECT_EQ(finding.code, "missingProperties")
            << finding.code << " " << toUtf8(finding.part) << " " << toUtf8(finding.text);
}

} // namespace
