/// @file
/// Small presentation packages as templates for tests: a test says what is particular about its template, and
/// the builder adds what a package needs around that.

#ifndef VELLOX_TESTS_SUPPORT_TEMPLATEBUILDER_H
#define VELLOX_TESTS_SUPPORT_TEMPLATEBUILDER_H

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Files.h"

namespace vellox::test {

/// @{ Shapes of a page, as XML.
std::string place(int x, int y, int cx, int cy);
/// A p:sp with one paragraph: a placeholder with a p:ph such as "<p:ph type='title'/>", a text box without.
std::string shape(int id, const std::string& name, const std::string& ph = "", const std::string& spPr = "",
                  const std::string& text = "prompt");
std::string pictureShape(int id, const std::string& name, const std::string& relationshipId,
                         const std::string& spPr);
/// A table at 100, 200 with columns of 1000000 EMU.
std::string tableShape(int id, const std::string& name, unsigned rows, unsigned columns);
/// A frame with a chart, which no class of nodes stands for.
std::string chartShape(int id, const std::string& name);
std::string groupShape(int id, const std::string& name, const std::string& shapes);
std::string connectorShape(int id, const std::string& name);
/// @}

/// A row of a relationship part. The kind is the last word of its type: "image", "slideLayout".
struct Relation {
    std::string id, kind, target;
    bool isExternal = false;
};

/// A master, a layout or a slide: what its XML and its relationships hold beside what any has.
struct Page {
    std::string part; ///< the name of its entry, "ppt/slides/slide1.xml"; may be changed
    std::string name; ///< of its p:cSld; a master's is that of its theme
    std::string shapes;
    std::string attributes;          ///< of the root
    std::string background;          ///< ahead of the shape tree
    std::string behindTree;          ///< such as p:custDataLst
    std::string behindData;          ///< behind p:cSld, such as p:clrMapOvr
    std::string xml;                 ///< the whole part, in place of all that
    std::vector<Relation> relations; ///< beside those to masters, layouts and themes
};

/// A presentation with masters, their layouts, and slides, in the order in which they are added.
///
///     TemplateBuilder builder;
///     builder.addMaster("Theme");
///     Page& layout = builder.addLayout("Own", shape(7, "Title", "<p:ph type='title'/>"));
///     layout.background = "<p:bg><p:bgPr><a:noFill/><a:effectLst/></p:bgPr></p:bg>";
///     useTemplate(builder.build());
class TemplateBuilder {
public:
    /// @param theme the name of its theme; without one it has none
    Page& addMaster(const std::string& theme, const std::string& shapes = "");
    /// A layout of the master that was added last.
    Page& addLayout(const std::string& name, const std::string& shapes = "");
    Page& addSlide(const std::string& name, const Page& layout, const std::string& shapes = "");
    /// A section of the slides from one number to another, from 1.
    void addSection(const std::string& name, unsigned first, unsigned last);
    void addTableStyle(const std::string& name, const std::string& id);
    /// Any other part, without the leading slash in its name.
    void addPart(const std::string& name, const std::string& contentType, const std::string& bytes,
                 const std::vector<Relation>& relations = {});
    void setContentType(const std::string& mainType) { mainType_ = mainType; }
    /// What stands behind the list of masters, and the relationships for it.
    void addToPresentation(const std::string& xml, const std::vector<Relation>& relations);
    Parts build() const;

private:
    struct Master : Page {
        std::deque<Page> layouts;
    };
    struct Slide : Page {
        const Page* layout = nullptr;
    };
    struct OtherPart {
        std::string name, contentType, bytes;
        std::vector<Relation> relations;
    };
    class Output;

    void writeMaster(Output& output, const Master& master, unsigned number) const;
    void writePresentation(Output& output) const;
    std::string makeSections() const;

    std::string mainType_ =
        "application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
    std::deque<Master> masters_; // pages stay where they are: tests hold on to them
    std::deque<Slide> slides_;
    std::vector<std::pair<std::string, std::string>> tableStyles_;
    std::vector<std::string> sections_;
    std::vector<OtherPart> others_;
    std::string behindMasters_;
    std::vector<Relation> relations_;
    unsigned layoutCount_ = 0;
};

} // namespace vellox::test

#endif
