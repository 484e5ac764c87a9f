#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/binding/ParagraphRows.h"
#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/TablePlaceholder.h"

namespace vellox::ppt::hostbind {

namespace {

BoundClass describePicturePlaceholder() {
    BoundClass bound = describeAbstract<PicturePlaceholder>("PicturePlaceholder", "BodyPlaceholder",
                                                            "A placeholder for a picture, or for text.");
    bound.methods = makeParagraphRows();
    append(bound.methods, makeContentRows());
    bound.methods.push_back(makeReplaceRow<PicturePlaceholder, Picture>("picture"));
    return bound;
}

BoundClass describeTablePlaceholder() {
    BoundClass bound = describeAbstract<TablePlaceholder>("TablePlaceholder", "BodyPlaceholder",
                                                          "A placeholder for a table, or for text.");
    bound.methods = makeParagraphRows();
    bound.methods.push_back(makeReplaceRow<TablePlaceholder, Table>("table"));
    return bound;
}

BoundClass describeContentPlaceholder() {
    BoundClass bound = describeAbstract<ContentPlaceholder>("ContentPlaceholder", "PicturePlaceholder",
                                                            "A placeholder for text, a picture or a table.");
    bound.methods = makeParagraphRows();
    append(bound.methods, {makeReplaceRow<PicturePlaceholder, Picture>("picture"),
                           makeReplaceRow<ContentPlaceholder, Table>("table")});
    append(bound.methods, makeContentRows());
    return bound;
}

} // namespace

std::vector<BoundClass> describePlaceholders() {
    return {
        describeAbstract<TextBoxPlaceholder>("TextBoxPlaceholder", "BaseTextBox", "A placeholder for text."),
        describeAbstract<BodyPlaceholder>("BodyPlaceholder", "TextBoxPlaceholder",
                                          "A placeholder for text with levels."),
        describePicturePlaceholder(),
        describeTablePlaceholder(),
        describeContentPlaceholder(),
    };
}

} // namespace vellox::ppt::hostbind
