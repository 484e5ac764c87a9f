/// @file
/// The whole public interface of vellox.
///
///     #include <vellox/vellox.h>
///     using namespace vellox::ppt;
///
///     int main() {
///         Presentation deck(L"report.pptx");
///         Slide slide = deck.add(L"Title and Content");
///         slide.replace(L"Title", L"Weekly report");
///         slide.add(L"Content", L"All went well.");
///         deck.close();
///     }

#ifndef VELLOX_VELLOX_H
#define VELLOX_VELLOX_H

#include "vellox/check/PackageCheck.h"
#include "vellox/doctor/ReportJson.h"
#include "vellox/doctor/TemplateDoctor.h"
#include "vellox/foundation/ByteArray.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Dimension.h"
#include "vellox/foundation/Exception.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/InfoUtils.h"
#include "vellox/foundation/MessageCatalog.h"
#include "vellox/foundation/NameHint.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/host/values/HvContent.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/engine/Presentation.h"
#include "vellox/ppt/engine/Template.h"
#include "vellox/ppt/formats/Alignment.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/formats/CellFormats.h"
#include "vellox/ppt/formats/CharacterFormats.h"
#include "vellox/ppt/formats/Color.h"
#include "vellox/ppt/formats/Format.h"
#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/messages/Finding.h"
#include "vellox/ppt/messages/Message.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/messages/MessageFilter.h"
#include "vellox/ppt/object/Content.h"
#include "vellox/ppt/object/PPTClientImpl.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/object/PPTObject.h"
#include "vellox/ppt/tree/Cast.h"
#include "vellox/ppt/tree/ColSpec.h"
#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/ExternalLink.h"
#include "vellox/ppt/tree/Group.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/PicturePlaceholder.h"
#include "vellox/ppt/tree/Slide.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TableEntry.h"
#include "vellox/ppt/tree/TablePlaceholder.h"
#include "vellox/ppt/tree/TableRow.h"
#include "vellox/ppt/tree/Text.h"
#include "vellox/ppt/tree/TextBox.h"
#include "vellox/reading/DeckComparison.h"
#include "vellox/reading/DeckReader.h"

#endif
