/// @file
/// Is this package one that no strict reader will want to repair?
///
///     for (const Finding& finding : vellox::ppt::checkPackage(L"report.pptx"))
///         std::wcout << finding.part << L": " << finding.text << L"\n";

#ifndef VELLOX_CHECK_PACKAGECHECK_H
#define VELLOX_CHECK_PACKAGECHECK_H

#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/ppt/messages/Finding.h"

namespace vellox::ppt {

/// Checks a presentation, template or slide show: a file, or a folder with the parts as files. Nothing is
/// changed, nothing is thrown for a bad package, and no package can do harm.
///
/// A sound package gives no finding of severity error. There are up to 1000 findings, in the order of the
/// steps; the codes, with their severities:
///
/// The archive
/// - cannotOpen (error): it can't be opened at all; the text says why
/// - entryName (error): an entry whose name no part can have: absolute, with "..", with a backslash
/// - duplicateEntry (error): two entries of one name, upper and lower case aside
/// - unsupportedCompression (error): an entry that is neither stored nor deflated
/// - folderEntry (info): entries for folders
/// - unreadablePart (error): an entry that is damaged, encrypted or too large
/// - notWellFormed (error): a part that is no well-formed XML, has a document type, or another encoding than
///   UTF-8 and UTF-16
///
/// Content types
/// - contentTypes (error): the list of content types isn't what it should be
/// - duplicateContentType (error): two content types for one extension or part
/// - missingContentType (error): a part without a content type
/// - phantomContentType (warning): a content type for a part that doesn't exist
/// - prefixedContentTypes (warning): the list is written with a prefix
/// - wrongContentType (error): a part of another content type than the relationship to it needs
/// - wrongFileExtension (error): a template named .pptx, and the like
///
/// Relationships
/// - relationship (error): a relationship without id, type or target, or with values that aren't allowed
/// - duplicateRelationship (error): two relationships of a part with one id
/// - danglingRelationship (error): a target that doesn't exist in the package
/// - strayRelationships (error): relationships of a part that doesn't exist
/// - emptyTarget (error): a target outside the package that is empty
/// - invalidTarget (error): a target outside the package that is no URI: two "#", or "%" and no digits
/// - unencodedTarget (warning): a target outside the package with characters that must be encoded
/// - targetSpelling (warning): a target that is spelled otherwise than the part
/// - unreachablePart (warning): a part that nothing leads to
///
/// The presentation
/// - mainPart (error): no main part, or several
/// - slideId, masterId (error): the id of a slide is not from 256 to 2147483647; that of a master or layout
///   is not from 2147483648 to 4294967295
/// - duplicateSlideId, duplicateMasterId (error): an id that stands twice, over masters and layouts together
/// - slideList, masterList, layoutList (error): an entry that leads nowhere, or a part that is listed twice
/// - unlistedSlide, unlistedLayout (warning): a slide or layout that is in no list
/// - sectionSlide (error): a section names a slide id that doesn't exist
/// - sectionMembership (warning): a slide in no section or in several, where there are sections
/// - structure (error): a part without what its kind needs, or with too much of it: a slide its layout, a
///   layout its master, a master its theme, notes their master
/// - sharedPart (warning): a theme of two masters, a page of notes of two slides
/// - notesBacklink (warning): notes and slide that don't name each other
/// - commentAuthor (warning): a comment by somebody who is not among the authors
/// - missingProperties (info): no core or extended properties
///
/// Elements
/// - rootElement (error): a part with another root element than its content type needs
/// - unknownElement (error): an element that isn't allowed where it stands
/// - elementOrder (error): an element behind one that must follow it, or once too often
/// - missingElement (error): an element that must be there and isn't
/// - unknownAttribute, missingAttribute (error): an attribute that isn't allowed, or must be there and isn't
/// - invalidValue (error): a value of another kind than is allowed, or out of its range
/// - unexpectedText (error): text where only elements are allowed
/// - unknownPrefix (error): a prefix that is declared nowhere
/// - unknownReference (error): r:id, r:embed and the like name no relationship of the part
/// - wrongReference (error): they lead to a part of another kind, such as a picture's to a chart
/// - emptyReference (warning): they are empty, other than those of links
/// - duplicateShapeId (warning): two shapes of a slide, layout or master with one id
/// - shapeReference (warning): a connector or an animation names a shape that doesn't exist
/// - tableGrid (error): a row with more or fewer cells than the table has columns, or merged cells that reach
///   out of it
/// - tableSpan (warning): merged cells that don't agree on who is merged
/// - strictForm (warning): a package in the strict form; sequences and values in it are not checked
///
/// - moreFindings (info): the last one, if there would be more than 1000
///
/// @param path of the file or folder
VELLOX_API std::vector<Finding> checkPackage(const std::wstring& path);

} // namespace vellox::ppt

#endif
