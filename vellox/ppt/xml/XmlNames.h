/// @file
/// The names of PresentationML and DrawingML that the library reads and writes, in the form that Xerces
/// wants. Documents are parsed without namespaces, so that a name is its prefix and its local part; the
/// prefixes "p", "a" and "r" are fixed.

#ifndef VELLOX_PPT_XML_XMLNAMES_H
#define VELLOX_PPT_XML_XMLNAMES_H

#include <xercesc/util/XercesDefs.hpp>

namespace vellox::ppt::xml {

// PresentationML elements
inline constexpr XMLCh kBg[] = u"p:bg";
inline constexpr XMLCh kBlipFill[] = u"p:blipFill";
inline constexpr XMLCh kClrMapOvr[] = u"p:clrMapOvr";
inline constexpr XMLCh kCNvGraphicFramePr[] = u"p:cNvGraphicFramePr";
inline constexpr XMLCh kCNvPicPr[] = u"p:cNvPicPr";
inline constexpr XMLCh kCNvPr[] = u"p:cNvPr";
inline constexpr XMLCh kCNvSpPr[] = u"p:cNvSpPr";
inline constexpr XMLCh kCSld[] = u"p:cSld";
inline constexpr XMLCh kCustDataLst[] = u"p:custDataLst";
inline constexpr XMLCh kCxnSp[] = u"p:cxnSp";
inline constexpr XMLCh kGraphicFrame[] = u"p:graphicFrame";
inline constexpr XMLCh kGrpSp[] = u"p:grpSp";
inline constexpr XMLCh kGrpSpPr[] = u"p:grpSpPr";
inline constexpr XMLCh kHandoutMasterIdLst[] = u"p:handoutMasterIdLst";
inline constexpr XMLCh kNotesMasterIdLst[] = u"p:notesMasterIdLst";
inline constexpr XMLCh kNvCxnSpPr[] = u"p:nvCxnSpPr";
inline constexpr XMLCh kNvGraphicFramePr[] = u"p:nvGraphicFramePr";
inline constexpr XMLCh kNvGrpSpPr[] = u"p:nvGrpSpPr";
inline constexpr XMLCh kNvPicPr[] = u"p:nvPicPr";
inline constexpr XMLCh kNvPr[] = u"p:nvPr";
inline constexpr XMLCh kNvSpPr[] = u"p:nvSpPr";
inline constexpr XMLCh kPh[] = u"p:ph";
inline constexpr XMLCh kPic[] = u"p:pic";
inline constexpr XMLCh kSld[] = u"p:sld";
inline constexpr XMLCh kSldId[] = u"p:sldId";
inline constexpr XMLCh kSldIdLst[] = u"p:sldIdLst";
inline constexpr XMLCh kSldLayout[] = u"p:sldLayout";
inline constexpr XMLCh kSldLayoutId[] = u"p:sldLayoutId";
inline constexpr XMLCh kSldMasterId[] = u"p:sldMasterId";
inline constexpr XMLCh kSldMasterIdLst[] = u"p:sldMasterIdLst";
inline constexpr XMLCh kSp[] = u"p:sp";
inline constexpr XMLCh kSpPr[] = u"p:spPr";
inline constexpr XMLCh kExtLst[] = u"p:extLst";
inline constexpr XMLCh kSpTree[] = u"p:spTree";
inline constexpr XMLCh kSldSz[] = u"p:sldSz";
inline constexpr XMLCh kTitleStyle[] = u"p:titleStyle";
inline constexpr XMLCh kBodyStyle[] = u"p:bodyStyle";
inline constexpr XMLCh kTxStyles[] = u"p:txStyles";
inline constexpr XMLCh kTxBody[] = u"p:txBody";
inline constexpr XMLCh kXfrm[] = u"p:xfrm";

inline constexpr XMLCh kP14Section[] = u"p14:section";
inline constexpr XMLCh kP14SldId[] = u"p14:sldId";
inline constexpr XMLCh kP14SldIdLst[] = u"p14:sldIdLst";

// DrawingML elements
inline constexpr XMLCh kABlip[] = u"a:blip";
inline constexpr XMLCh kABodyPr[] = u"a:bodyPr";
inline constexpr XMLCh kADefRPr[] = u"a:defRPr";
inline constexpr XMLCh kACs[] = u"a:cs";
inline constexpr XMLCh kAEndParaRPr[] = u"a:endParaRPr";
inline constexpr XMLCh kAExt[] = u"a:ext";
inline constexpr XMLCh kAExtLst[] = u"a:extLst";
inline constexpr XMLCh kAFillRect[] = u"a:fillRect";
inline constexpr XMLCh kAGraphic[] = u"a:graphic";
inline constexpr XMLCh kAGraphicData[] = u"a:graphicData";
inline constexpr XMLCh kAGraphicFrameLocks[] = u"a:graphicFrameLocks";
inline constexpr XMLCh kAGridCol[] = u"a:gridCol";
inline constexpr XMLCh kAHlinkClick[] = u"a:hlinkClick";
inline constexpr XMLCh kAHlinkMouseOver[] = u"a:hlinkMouseOver";
inline constexpr XMLCh kABuFont[] = u"a:buFont";
inline constexpr XMLCh kABuFontTx[] = u"a:buFontTx";
inline constexpr XMLCh kABuNone[] = u"a:buNone";
inline constexpr XMLCh kABuAutoNum[] = u"a:buAutoNum";
inline constexpr XMLCh kABuChar[] = u"a:buChar";
inline constexpr XMLCh kABuBlip[] = u"a:buBlip";
inline constexpr XMLCh kANoAutofit[] = u"a:noAutofit";
inline constexpr XMLCh kANormAutofit[] = u"a:normAutofit";
inline constexpr XMLCh kASpAutoFit[] = u"a:spAutoFit";
inline constexpr XMLCh kALatin[] = u"a:latin";
inline constexpr XMLCh kALnB[] = u"a:lnB";
inline constexpr XMLCh kALnL[] = u"a:lnL";
inline constexpr XMLCh kALnR[] = u"a:lnR";
inline constexpr XMLCh kALnT[] = u"a:lnT";
inline constexpr XMLCh kALstStyle[] = u"a:lstStyle";
inline constexpr XMLCh kAOff[] = u"a:off";
inline constexpr XMLCh kAP[] = u"a:p";
inline constexpr XMLCh kAPPr[] = u"a:pPr";
inline constexpr XMLCh kAPicLocks[] = u"a:picLocks";
inline constexpr XMLCh kAPrstDash[] = u"a:prstDash";
inline constexpr XMLCh kAPrstGeom[] = u"a:prstGeom";
inline constexpr XMLCh kABr[] = u"a:br";
inline constexpr XMLCh kAFld[] = u"a:fld";
inline constexpr XMLCh kAR[] = u"a:r";
inline constexpr XMLCh kARPr[] = u"a:rPr";
inline constexpr XMLCh kASolidFill[] = u"a:solidFill";
inline constexpr XMLCh kALumMod[] = u"a:lumMod";
inline constexpr XMLCh kALumOff[] = u"a:lumOff";
inline constexpr XMLCh kASchemeClr[] = u"a:schemeClr";
inline constexpr XMLCh kANoFill[] = u"a:noFill";
inline constexpr XMLCh kAGradFill[] = u"a:gradFill";
inline constexpr XMLCh kABlipFill[] = u"a:blipFill";
inline constexpr XMLCh kAPattFill[] = u"a:pattFill";
inline constexpr XMLCh kAGrpFill[] = u"a:grpFill";
inline constexpr XMLCh kASrgbClr[] = u"a:srgbClr";
inline constexpr XMLCh kASrcRect[] = u"a:srcRect";
inline constexpr XMLCh kAStretch[] = u"a:stretch";
inline constexpr XMLCh kAT[] = u"a:t";
inline constexpr XMLCh kATableStyle[] = u"a:tableStyle";
inline constexpr XMLCh kATableStyleId[] = u"a:tableStyleId";
inline constexpr XMLCh kATbl[] = u"a:tbl";
inline constexpr XMLCh kATblGrid[] = u"a:tblGrid";
inline constexpr XMLCh kATblPr[] = u"a:tblPr";
inline constexpr XMLCh kATblStyle[] = u"a:tblStyle";
inline constexpr XMLCh kATc[] = u"a:tc";
inline constexpr XMLCh kATcPr[] = u"a:tcPr";
inline constexpr XMLCh kATheme[] = u"a:theme";
inline constexpr XMLCh kATr[] = u"a:tr";
inline constexpr XMLCh kATxBody[] = u"a:txBody";
inline constexpr XMLCh kAXfrm[] = u"a:xfrm";

// Attributes
inline constexpr XMLCh kAlgn[] = u"algn";
inline constexpr XMLCh kAnchor[] = u"anchor";
inline constexpr XMLCh kAnchorCtr[] = u"anchorCtr";
inline constexpr XMLCh kB[] = u"b";
inline constexpr XMLCh kBandCol[] = u"bandCol";
inline constexpr XMLCh kBandRow[] = u"bandRow";
inline constexpr XMLCh kBaseline[] = u"baseline";
inline constexpr XMLCh kBmk[] = u"bmk";
inline constexpr XMLCh kCap[] = u"cap";
inline constexpr XMLCh kCmpd[] = u"cmpd";
inline constexpr XMLCh kCx[] = u"cx";
inline constexpr XMLCh kCy[] = u"cy";
inline constexpr XMLCh kDataUid[] = u"data-uid";
inline constexpr XMLCh kDef[] = u"def";
inline constexpr XMLCh kDescr[] = u"descr";
inline constexpr XMLCh kDirty[] = u"dirty";
inline constexpr XMLCh kErr[] = u"err";
inline constexpr XMLCh kFirstCol[] = u"firstCol";
inline constexpr XMLCh kFirstRow[] = u"firstRow";
inline constexpr XMLCh kFlipH[] = u"flipH";
inline constexpr XMLCh kFlipV[] = u"flipV";
inline constexpr XMLCh kHMerge[] = u"hMerge";
inline constexpr XMLCh kH[] = u"h";
inline constexpr XMLCh kI[] = u"i";
inline constexpr XMLCh kId[] = u"id";
inline constexpr XMLCh kIdx[] = u"idx";
inline constexpr XMLCh kIndent[] = u"indent";
inline constexpr XMLCh kL[] = u"l";
inline constexpr XMLCh kLastCol[] = u"lastCol";
inline constexpr XMLCh kLastRow[] = u"lastRow";
inline constexpr XMLCh kLang[] = u"lang";
inline constexpr XMLCh kLvl[] = u"lvl";
inline constexpr XMLCh kMarB[] = u"marB";
inline constexpr XMLCh kMarL[] = u"marL";
inline constexpr XMLCh kMarR[] = u"marR";
inline constexpr XMLCh kMarT[] = u"marT";
inline constexpr XMLCh kName[] = u"name";
inline constexpr XMLCh kNoChangeAspect[] = u"noChangeAspect";
inline constexpr XMLCh kNoGrp[] = u"noGrp";
inline constexpr XMLCh kPrst[] = u"prst";
inline constexpr XMLCh kREmbed[] = u"r:embed";
inline constexpr XMLCh kRId[] = u"r:id";
inline constexpr XMLCh kRPrefix[] = u"r:";
inline constexpr XMLCh kRot[] = u"rot";
inline constexpr XMLCh kShowMasterSp[] = u"showMasterSp";
inline constexpr XMLCh kShow[] = u"show";
inline constexpr XMLCh kSmtClean[] = u"smtClean";
inline constexpr XMLCh kStrike[] = u"strike";
inline constexpr XMLCh kStyleId[] = u"styleId";
inline constexpr XMLCh kStyleName[] = u"styleName";
inline constexpr XMLCh kSz[] = u"sz";
inline constexpr XMLCh kT[] = u"t";
inline constexpr XMLCh kType[] = u"type";
inline constexpr XMLCh kTypeface[] = u"typeface";
inline constexpr XMLCh kU[] = u"u";
inline constexpr XMLCh kUri[] = u"uri";
inline constexpr XMLCh kVMerge[] = u"vMerge";
inline constexpr XMLCh kVal[] = u"val";
inline constexpr XMLCh kW[] = u"w";
inline constexpr XMLCh kX[] = u"x";
inline constexpr XMLCh kXmlnsA[] = u"xmlns:a";
inline constexpr XMLCh kXmlnsP[] = u"xmlns:p";
inline constexpr XMLCh kXmlnsR[] = u"xmlns:r";
inline constexpr XMLCh kY[] = u"y";

// Attribute values
inline constexpr XMLCh kCentered[] = u"ctr";
inline constexpr XMLCh kFlat[] = u"flat";
inline constexpr XMLCh kRight[] = u"r";
inline constexpr XMLCh kFalse[] = u"0";
inline constexpr XMLCh kRect[] = u"rect";
inline constexpr XMLCh kTableUri[] = u"http://schemas.openxmlformats.org/drawingml/2006/table";
inline constexpr XMLCh kTrue[] = u"1";

// Namespaces
inline constexpr XMLCh kDrawingUri[] = u"http://schemas.openxmlformats.org/drawingml/2006/main";
inline constexpr XMLCh kPresentationUri[] = u"http://schemas.openxmlformats.org/presentationml/2006/main";
inline constexpr XMLCh kRelationshipsUri[] =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships";

} // namespace vellox::ppt::xml

#endif
