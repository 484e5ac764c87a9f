// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kDrawingTypes[] = R"rows(
CT_AudioFile: extLst=CT_OfficeArtExtensionList? ; r:link=r:ST_RelationshipId! contentType=string
CT_VideoFile: extLst=CT_OfficeArtExtensionList? ; r:link=r:ST_RelationshipId! contentType=string
CT_QuickTimeFile: extLst=CT_OfficeArtExtensionList? ; r:link=r:ST_RelationshipId!
CT_AudioCDTime: ; track=unsignedByte! time=unsignedInt
CT_AudioCD: st=CT_AudioCDTime end=CT_AudioCDTime extLst=CT_OfficeArtExtensionList?
videoFile = CT_VideoFile
CT_ColorScheme: dk1=CT_Color lt1=CT_Color dk2=CT_Color lt2=CT_Color accent1=CT_Color accent2=CT_Color
  accent3=CT_Color accent4=CT_Color accent5=CT_Color accent6=CT_Color hlink=CT_Color folHlink=CT_Color
  extLst=CT_OfficeArtExtensionList? ; name=string!
CT_CustomColor: EG_ColorChoice ; name=string
CT_SupplementalFont: ; script=string! typeface=ST_TextTypeface!
CT_CustomColorList: custClr=CT_CustomColor*
CT_FontCollection: latin=CT_TextFont ea=CT_TextFont cs=CT_TextFont font=CT_SupplementalFont*
  extLst=CT_OfficeArtExtensionList?
CT_EffectStyleItem: EG_EffectProperties scene3d=CT_Scene3D? sp3d=CT_Shape3D?
CT_FontScheme: majorFont=CT_FontCollection minorFont=CT_FontCollection extLst=CT_OfficeArtExtensionList? ;
  name=string!
CT_FillStyleList: EG_FillProperties{3,}
CT_LineStyleList: ln=CT_LineProperties{3,}
CT_EffectStyleList: effectStyle=CT_EffectStyleItem{3,}
CT_BackgroundFillStyleList: EG_FillProperties{3,}
CT_StyleMatrix: fillStyleLst=CT_FillStyleList lnStyleLst=CT_LineStyleList effectStyleLst=CT_EffectStyleList
  bgFillStyleLst=CT_BackgroundFillStyleList ; name=string
CT_BaseStyles: clrScheme=CT_ColorScheme fontScheme=CT_FontScheme fmtScheme=CT_StyleMatrix
  extLst=CT_OfficeArtExtensionList?
CT_OfficeArtExtension: any* ; uri=token!
CT_Angle: ; val=ST_Angle!
CT_PositiveFixedAngle: ; val=ST_PositiveFixedAngle!
CT_Percentage: ; val=ST_Percentage!
CT_PositivePercentage: ; val=ST_PositivePercentage!
CT_FixedPercentage: ; val=ST_FixedPercentage!
CT_PositiveFixedPercentage: ; val=ST_PositiveFixedPercentage!
CT_Ratio: ; n=long! d=long!
CT_Point2D: ; x=ST_Coordinate! y=ST_Coordinate!
CT_PositiveSize2D: ; cx=ST_PositiveCoordinate! cy=ST_PositiveCoordinate!
CT_ComplementTransform:
CT_InverseTransform:
CT_GrayscaleTransform:
CT_GammaTransform:
CT_InverseGammaTransform:
CT_ScRgbColor: EG_ColorTransform* ; r=ST_Percentage! g=ST_Percentage! b=ST_Percentage!
CT_SRgbColor: EG_ColorTransform* ; val=s:ST_HexColorRGB!
CT_HslColor: EG_ColorTransform* ; hue=ST_PositiveFixedAngle! sat=ST_Percentage! lum=ST_Percentage!
CT_SystemColor: EG_ColorTransform* ; val=ST_SystemColorVal! lastClr=s:ST_HexColorRGB
CT_SchemeColor: EG_ColorTransform* ; val=ST_SchemeColorVal!
CT_PresetColor: EG_ColorTransform* ; val=ST_PresetColorVal!
CT_OfficeArtExtensionList: EG_OfficeArtExtensionList
CT_Scale2D: sx=CT_Ratio sy=CT_Ratio
CT_Transform2D: off=CT_Point2D? ext=CT_PositiveSize2D? ; rot=ST_Angle flipH=boolean flipV=boolean
CT_GroupTransform2D: off=CT_Point2D? ext=CT_PositiveSize2D? chOff=CT_Point2D? chExt=CT_PositiveSize2D? ;
  rot=ST_Angle flipH=boolean flipV=boolean
CT_Point3D: ; x=ST_Coordinate! y=ST_Coordinate! z=ST_Coordinate!
CT_Vector3D: ; dx=ST_Coordinate! dy=ST_Coordinate! dz=ST_Coordinate!
CT_SphereCoords: ; lat=ST_PositiveFixedAngle! lon=ST_PositiveFixedAngle! rev=ST_PositiveFixedAngle!
CT_RelativeRect: ; l=ST_Percentage t=ST_Percentage r=ST_Percentage b=ST_Percentage
CT_Color: EG_ColorChoice
CT_ColorMRU: EG_ColorChoice*
CT_EmbeddedWAVAudioFile: ; r:embed=r:ST_RelationshipId! name=string builtIn=boolean
CT_Hyperlink: snd=CT_EmbeddedWAVAudioFile? extLst=CT_OfficeArtExtensionList? ; r:id=r:ST_RelationshipId
  invalidUrl=string action=string tgtFrame=string tooltip=string history=boolean highlightClick=boolean
  endSnd=boolean
CT_ConnectorLocking: extLst=CT_OfficeArtExtensionList? ; AG_Locking
CT_ShapeLocking: extLst=CT_OfficeArtExtensionList? ; AG_Locking noTextEdit=boolean
CT_PictureLocking: extLst=CT_OfficeArtExtensionList? ; AG_Locking noCrop=boolean
CT_GroupLocking: extLst=CT_OfficeArtExtensionList? ; noGrp=boolean noUngrp=boolean noSelect=boolean
  noRot=boolean noChangeAspect=boolean noMove=boolean noResize=boolean
CT_GraphicalObjectFrameLocking: extLst=CT_OfficeArtExtensionList? ; noGrp=boolean noDrilldown=boolean
  noSelect=boolean noChangeAspect=boolean noMove=boolean noResize=boolean
CT_ContentPartLocking: extLst=CT_OfficeArtExtensionList? ; AG_Locking
CT_NonVisualDrawingProps: hlinkClick=CT_Hyperlink? hlinkHover=CT_Hyperlink?
  extLst=CT_OfficeArtExtensionList? ; id=ST_DrawingElementId! name=string! descr=string hidden=boolean
  title=string
CT_NonVisualDrawingShapeProps: spLocks=CT_ShapeLocking? extLst=CT_OfficeArtExtensionList? ; txBox=boolean
CT_NonVisualConnectorProperties: cxnSpLocks=CT_ConnectorLocking? stCxn=CT_Connection? endCxn=CT_Connection?
  extLst=CT_OfficeArtExtensionList?
CT_NonVisualPictureProperties: picLocks=CT_PictureLocking? extLst=CT_OfficeArtExtensionList? ;
  preferRelativeResize=boolean
CT_NonVisualGroupDrawingShapeProps: grpSpLocks=CT_GroupLocking? extLst=CT_OfficeArtExtensionList?
CT_NonVisualGraphicFrameProperties: graphicFrameLocks=CT_GraphicalObjectFrameLocking?
  extLst=CT_OfficeArtExtensionList?
CT_NonVisualContentPartProperties: cpLocks=CT_ContentPartLocking? extLst=CT_OfficeArtExtensionList? ;
  isComment=boolean
CT_GraphicalObjectData: anyKnown* ; uri=token!
CT_GraphicalObject: graphicData=CT_GraphicalObjectData
graphic = CT_GraphicalObject
CT_AnimationDgmElement: ; id=s:ST_Guid bldStep=ST_DgmBuildStep
CT_AnimationChartElement: ; seriesIdx=int categoryIdx=int bldStep=ST_ChartBuildStep!
CT_AnimationElementChoice: (dgm=CT_AnimationDgmElement | chart=CT_AnimationChartElement)
CT_AnimationDgmBuildProperties: ; bld=ST_AnimationDgmBuildType rev=boolean
CT_AnimationChartBuildProperties: ; bld=ST_AnimationChartBuildType animBg=boolean
CT_AnimationGraphicalObjectBuildProperties: (bldDgm=CT_AnimationDgmBuildProperties |
  bldChart=CT_AnimationChartBuildProperties)
CT_BackgroundFormatting: EG_FillProperties? EG_EffectProperties?
CT_WholeE2oFormatting: ln=CT_LineProperties? EG_EffectProperties?
CT_GvmlUseShapeRectangle:
CT_GvmlTextShape: txBody=CT_TextBody (useSpRect=CT_GvmlUseShapeRectangle | xfrm=CT_Transform2D)
  extLst=CT_OfficeArtExtensionList?
CT_GvmlShapeNonVisual: cNvPr=CT_NonVisualDrawingProps cNvSpPr=CT_NonVisualDrawingShapeProps
CT_GvmlShape: nvSpPr=CT_GvmlShapeNonVisual spPr=CT_ShapeProperties txSp=CT_GvmlTextShape?
  style=CT_ShapeStyle? extLst=CT_OfficeArtExtensionList?
CT_GvmlConnectorNonVisual: cNvPr=CT_NonVisualDrawingProps cNvCxnSpPr=CT_NonVisualConnectorProperties
CT_GvmlConnector: nvCxnSpPr=CT_GvmlConnectorNonVisual spPr=CT_ShapeProperties style=CT_ShapeStyle?
  extLst=CT_OfficeArtExtensionList?
CT_GvmlPictureNonVisual: cNvPr=CT_NonVisualDrawingProps cNvPicPr=CT_NonVisualPictureProperties
CT_GvmlPicture: nvPicPr=CT_GvmlPictureNonVisual blipFill=CT_BlipFillProperties spPr=CT_ShapeProperties
  style=CT_ShapeStyle? extLst=CT_OfficeArtExtensionList?
CT_GvmlGraphicFrameNonVisual: cNvPr=CT_NonVisualDrawingProps
  cNvGraphicFramePr=CT_NonVisualGraphicFrameProperties
CT_GvmlGraphicalObjectFrame: nvGraphicFramePr=CT_GvmlGraphicFrameNonVisual graphic xfrm=CT_Transform2D
  extLst=CT_OfficeArtExtensionList?
CT_GvmlGroupShapeNonVisual: cNvPr=CT_NonVisualDrawingProps cNvGrpSpPr=CT_NonVisualGroupDrawingShapeProps
CT_GvmlGroupShape: nvGrpSpPr=CT_GvmlGroupShapeNonVisual grpSpPr=CT_GroupShapeProperties
  (txSp=CT_GvmlTextShape | sp=CT_GvmlShape | cxnSp=CT_GvmlConnector | pic=CT_GvmlPicture |
  graphicFrame=CT_GvmlGraphicalObjectFrame | grpSp=CT_GvmlGroupShape)* extLst=CT_OfficeArtExtensionList?
CT_Camera: rot=CT_SphereCoords? ; prst=ST_PresetCameraType! fov=ST_FOVAngle zoom=ST_PositivePercentage
CT_LightRig: rot=CT_SphereCoords? ; rig=ST_LightRigType! dir=ST_LightRigDirection!
CT_Scene3D: camera=CT_Camera lightRig=CT_LightRig backdrop=CT_Backdrop? extLst=CT_OfficeArtExtensionList?
CT_Backdrop: anchor=CT_Point3D norm=CT_Vector3D up=CT_Vector3D extLst=CT_OfficeArtExtensionList?
CT_Bevel: ; w=ST_PositiveCoordinate h=ST_PositiveCoordinate prst=ST_BevelPresetType
CT_Shape3D: bevelT=CT_Bevel? bevelB=CT_Bevel? extrusionClr=CT_Color? contourClr=CT_Color?
  extLst=CT_OfficeArtExtensionList? ; z=ST_Coordinate extrusionH=ST_PositiveCoordinate
  contourW=ST_PositiveCoordinate prstMaterial=ST_PresetMaterialType
CT_FlatText: ; z=ST_Coordinate
CT_AlphaBiLevelEffect: ; thresh=ST_PositiveFixedPercentage!
CT_AlphaCeilingEffect:
CT_AlphaFloorEffect:
CT_AlphaInverseEffect: EG_ColorChoice?
CT_AlphaModulateFixedEffect: ; amt=ST_PositivePercentage
CT_AlphaOutsetEffect: ; rad=ST_Coordinate
CT_AlphaReplaceEffect: ; a=ST_PositiveFixedPercentage!
CT_BiLevelEffect: ; thresh=ST_PositiveFixedPercentage!
CT_BlurEffect: ; rad=ST_PositiveCoordinate grow=boolean
CT_ColorChangeEffect: clrFrom=CT_Color clrTo=CT_Color ; useA=boolean
CT_ColorReplaceEffect: EG_ColorChoice
CT_DuotoneEffect: EG_ColorChoice{2,2}
CT_GlowEffect: EG_ColorChoice ; rad=ST_PositiveCoordinate
CT_GrayscaleEffect:
CT_HSLEffect: ; hue=ST_PositiveFixedAngle sat=ST_FixedPercentage lum=ST_FixedPercentage
CT_InnerShadowEffect: EG_ColorChoice ; blurRad=ST_PositiveCoordinate dist=ST_PositiveCoordinate
  dir=ST_PositiveFixedAngle
CT_LuminanceEffect: ; bright=ST_FixedPercentage contrast=ST_FixedPercentage
CT_OuterShadowEffect: EG_ColorChoice ; blurRad=ST_PositiveCoordinate dist=ST_PositiveCoordinate
  dir=ST_PositiveFixedAngle sx=ST_Percentage sy=ST_Percentage kx=ST_FixedAngle ky=ST_FixedAngle
  algn=ST_RectAlignment rotWithShape=boolean
CT_PresetShadowEffect: EG_ColorChoice ; prst=ST_PresetShadowVal! dist=ST_PositiveCoordinate
  dir=ST_PositiveFixedAngle
CT_ReflectionEffect: ; blurRad=ST_PositiveCoordinate stA=ST_PositiveFixedPercentage
  stPos=ST_PositiveFixedPercentage endA=ST_PositiveFixedPercentage endPos=ST_PositiveFixedPercentage
  dist=ST_PositiveCoordinate dir=ST_PositiveFixedAngle fadeDir=ST_PositiveFixedAngle sx=ST_Percentage
  sy=ST_Percentage kx=ST_FixedAngle ky=ST_FixedAngle algn=ST_RectAlignment rotWithShape=boolean
CT_RelativeOffsetEffect: ; tx=ST_Percentage ty=ST_Percentage
CT_SoftEdgesEffect: ; rad=ST_PositiveCoordinate!
CT_TintEffect: ; hue=ST_PositiveFixedAngle amt=ST_FixedPercentage
CT_TransformEffect: ; sx=ST_Percentage sy=ST_Percentage kx=ST_FixedAngle ky=ST_FixedAngle tx=ST_Coordinate
  ty=ST_Coordinate
CT_NoFillProperties:
CT_SolidColorFillProperties: EG_ColorChoice?
CT_LinearShadeProperties: ; ang=ST_PositiveFixedAngle scaled=boolean
CT_PathShadeProperties: fillToRect=CT_RelativeRect? ; path=ST_PathShadeType
CT_GradientStop: EG_ColorChoice ; pos=ST_PositiveFixedPercentage!
CT_GradientStopList: gs=CT_GradientStop{2,}
CT_GradientFillProperties: gsLst=CT_GradientStopList? EG_ShadeProperties? tileRect=CT_RelativeRect? ;
  flip=ST_TileFlipMode rotWithShape=boolean
CT_TileInfoProperties: ; tx=ST_Coordinate ty=ST_Coordinate sx=ST_Percentage sy=ST_Percentage
  flip=ST_TileFlipMode algn=ST_RectAlignment
CT_StretchInfoProperties: fillRect=CT_RelativeRect?
CT_Blip: (alphaBiLevel=CT_AlphaBiLevelEffect | alphaCeiling=CT_AlphaCeilingEffect |
  alphaFloor=CT_AlphaFloorEffect | alphaInv=CT_AlphaInverseEffect | alphaMod=CT_AlphaModulateEffect |
  alphaModFix=CT_AlphaModulateFixedEffect | alphaRepl=CT_AlphaReplaceEffect | biLevel=CT_BiLevelEffect |
  blur=CT_BlurEffect | clrChange=CT_ColorChangeEffect | clrRepl=CT_ColorReplaceEffect |
  duotone=CT_DuotoneEffect | fillOverlay=CT_FillOverlayEffect | grayscl=CT_GrayscaleEffect |
  hsl=CT_HSLEffect | lum=CT_LuminanceEffect | tint=CT_TintEffect)* extLst=CT_OfficeArtExtensionList? ;
  AG_Blob cstate=ST_BlipCompression
CT_BlipFillProperties: blip=CT_Blip? srcRect=CT_RelativeRect? EG_FillModeProperties? ; dpi=unsignedInt
  rotWithShape=boolean
CT_PatternFillProperties: fgClr=CT_Color? bgClr=CT_Color? ; prst=ST_PresetPatternVal
CT_GroupFillProperties:
CT_FillProperties: EG_FillProperties
CT_FillEffect: EG_FillProperties
CT_FillOverlayEffect: EG_FillProperties ; blend=ST_BlendMode!
CT_EffectReference: ; ref=token!
CT_EffectContainer: EG_Effect* ; type=ST_EffectContainerType name=token
CT_AlphaModulateEffect: cont=CT_EffectContainer
CT_BlendEffect: cont=CT_EffectContainer ; blend=ST_BlendMode!
CT_EffectList: blur=CT_BlurEffect? fillOverlay=CT_FillOverlayEffect? glow=CT_GlowEffect?
  innerShdw=CT_InnerShadowEffect? outerShdw=CT_OuterShadowEffect? prstShdw=CT_PresetShadowEffect?
  reflection=CT_ReflectionEffect? softEdge=CT_SoftEdgesEffect?
CT_EffectProperties: EG_EffectProperties
blip = CT_Blip
CT_GeomGuide: ; name=ST_GeomGuideName! fmla=ST_GeomGuideFormula!
CT_GeomGuideList: gd=CT_GeomGuide*
CT_AdjPoint2D: ; x=ST_AdjCoordinate! y=ST_AdjCoordinate!
CT_GeomRect: ; l=ST_AdjCoordinate! t=ST_AdjCoordinate! r=ST_AdjCoordinate! b=ST_AdjCoordinate!
CT_XYAdjustHandle: pos=CT_AdjPoint2D ; gdRefX=ST_GeomGuideName minX=ST_AdjCoordinate maxX=ST_AdjCoordinate
  gdRefY=ST_GeomGuideName minY=ST_AdjCoordinate maxY=ST_AdjCoordinate
CT_PolarAdjustHandle: pos=CT_AdjPoint2D ; gdRefR=ST_GeomGuideName minR=ST_AdjCoordinate
  maxR=ST_AdjCoordinate gdRefAng=ST_GeomGuideName minAng=ST_AdjAngle maxAng=ST_AdjAngle
CT_ConnectionSite: pos=CT_AdjPoint2D ; ang=ST_AdjAngle!
CT_AdjustHandleList: (ahXY=CT_XYAdjustHandle | ahPolar=CT_PolarAdjustHandle)*
CT_ConnectionSiteList: cxn=CT_ConnectionSite*
CT_Connection: ; id=ST_DrawingElementId! idx=unsignedInt!
CT_Path2DMoveTo: pt=CT_AdjPoint2D
CT_Path2DLineTo: pt=CT_AdjPoint2D
CT_Path2DArcTo: ; wR=ST_AdjCoordinate! hR=ST_AdjCoordinate! stAng=ST_AdjAngle! swAng=ST_AdjAngle!
CT_Path2DQuadBezierTo: pt=CT_AdjPoint2D{2,2}
CT_Path2DCubicBezierTo: pt=CT_AdjPoint2D{3,3}
CT_Path2DClose:
CT_Path2D: (close=CT_Path2DClose | moveTo=CT_Path2DMoveTo | lnTo=CT_Path2DLineTo | arcTo=CT_Path2DArcTo |
  quadBezTo=CT_Path2DQuadBezierTo | cubicBezTo=CT_Path2DCubicBezierTo)* ; w=ST_PositiveCoordinate
  h=ST_PositiveCoordinate fill=ST_PathFillMode stroke=boolean extrusionOk=boolean
CT_Path2DList: path=CT_Path2D*
CT_PresetGeometry2D: avLst=CT_GeomGuideList? ; prst=ST_ShapeType!
CT_PresetTextShape: avLst=CT_GeomGuideList? ; prst=ST_TextShapeType!
CT_CustomGeometry2D: avLst=CT_GeomGuideList? gdLst=CT_GeomGuideList? ahLst=CT_AdjustHandleList?
  cxnLst=CT_ConnectionSiteList? rect=CT_GeomRect? pathLst=CT_Path2DList
CT_LineEndProperties: ; type=ST_LineEndType w=ST_LineEndWidth len=ST_LineEndLength
CT_LineJoinBevel:
CT_LineJoinRound:
CT_LineJoinMiterProperties: ; lim=ST_PositivePercentage
CT_PresetLineDashProperties: ; val=ST_PresetLineDashVal
CT_DashStop: ; d=ST_PositivePercentage! sp=ST_PositivePercentage!
CT_DashStopList: ds=CT_DashStop*
CT_LineProperties: EG_LineFillProperties? EG_LineDashProperties? EG_LineJoinProperties?
  headEnd=CT_LineEndProperties? tailEnd=CT_LineEndProperties? extLst=CT_OfficeArtExtensionList? ;
  w=ST_LineWidth cap=ST_LineCap cmpd=ST_CompoundLine algn=ST_PenAlignment
CT_ShapeProperties: xfrm=CT_Transform2D? EG_Geometry? EG_FillProperties? ln=CT_LineProperties?
  EG_EffectProperties? scene3d=CT_Scene3D? sp3d=CT_Shape3D? extLst=CT_OfficeArtExtensionList? ;
  bwMode=ST_BlackWhiteMode
CT_GroupShapeProperties: xfrm=CT_GroupTransform2D? EG_FillProperties? EG_EffectProperties?
  scene3d=CT_Scene3D? extLst=CT_OfficeArtExtensionList? ; bwMode=ST_BlackWhiteMode
CT_StyleMatrixReference: EG_ColorChoice? ; idx=ST_StyleMatrixColumnIndex!
CT_FontReference: EG_ColorChoice? ; idx=ST_FontCollectionIndex!
CT_ShapeStyle: lnRef=CT_StyleMatrixReference fillRef=CT_StyleMatrixReference
  effectRef=CT_StyleMatrixReference fontRef=CT_FontReference
CT_DefaultShapeDefinition: spPr=CT_ShapeProperties bodyPr=CT_TextBodyProperties lstStyle=CT_TextListStyle
  style=CT_ShapeStyle? extLst=CT_OfficeArtExtensionList?
CT_ObjectStyleDefaults: spDef=CT_DefaultShapeDefinition? lnDef=CT_DefaultShapeDefinition?
  txDef=CT_DefaultShapeDefinition? extLst=CT_OfficeArtExtensionList?
CT_EmptyElement:
CT_ColorMapping: extLst=CT_OfficeArtExtensionList? ; bg1=ST_ColorSchemeIndex! tx1=ST_ColorSchemeIndex!
  bg2=ST_ColorSchemeIndex! tx2=ST_ColorSchemeIndex! accent1=ST_ColorSchemeIndex!
  accent2=ST_ColorSchemeIndex! accent3=ST_ColorSchemeIndex! accent4=ST_ColorSchemeIndex!
  accent5=ST_ColorSchemeIndex! accent6=ST_ColorSchemeIndex! hlink=ST_ColorSchemeIndex!
  folHlink=ST_ColorSchemeIndex!
CT_ColorMappingOverride: (masterClrMapping=CT_EmptyElement | overrideClrMapping=CT_ColorMapping)
CT_ColorSchemeAndMapping: clrScheme=CT_ColorScheme clrMap=CT_ColorMapping?
CT_ColorSchemeList: extraClrScheme=CT_ColorSchemeAndMapping*
CT_OfficeStyleSheet: themeElements=CT_BaseStyles objectDefaults=CT_ObjectStyleDefaults?
  extraClrSchemeLst=CT_ColorSchemeList? custClrLst=CT_CustomColorList? extLst=CT_OfficeArtExtensionList? ;
  name=string
CT_BaseStylesOverride: clrScheme=CT_ColorScheme? fontScheme=CT_FontScheme? fmtScheme=CT_StyleMatrix?
CT_ClipboardStyleSheet: themeElements=CT_BaseStyles clrMap=CT_ColorMapping
theme = CT_OfficeStyleSheet
themeOverride = CT_BaseStylesOverride
themeManager = CT_EmptyElement
CT_TableCellProperties: lnL=CT_LineProperties? lnR=CT_LineProperties? lnT=CT_LineProperties?
  lnB=CT_LineProperties? lnTlToBr=CT_LineProperties? lnBlToTr=CT_LineProperties? cell3D=CT_Cell3D?
  EG_FillProperties? headers=CT_Headers? extLst=CT_OfficeArtExtensionList? ; marL=ST_Coordinate32
  marR=ST_Coordinate32 marT=ST_Coordinate32 marB=ST_Coordinate32 vert=ST_TextVerticalType
  anchor=ST_TextAnchoringType anchorCtr=boolean horzOverflow=ST_TextHorzOverflowType
CT_Headers: (header=string)*
CT_TableCol: extLst=CT_OfficeArtExtensionList? ; w=ST_Coordinate!
CT_TableGrid: gridCol=CT_TableCol*
CT_TableCell: txBody=CT_TextBody? tcPr=CT_TableCellProperties? extLst=CT_OfficeArtExtensionList? ;
  rowSpan=int gridSpan=int hMerge=boolean vMerge=boolean id=string
CT_TableRow: tc=CT_TableCell* extLst=CT_OfficeArtExtensionList? ; h=ST_Coordinate!
CT_TableProperties: EG_FillProperties? EG_EffectProperties? (tableStyle=CT_TableStyle |
  tableStyleId=s:ST_Guid)? extLst=CT_OfficeArtExtensionList? ; rtl=boolean firstRow=boolean firstCol=boolean
  lastRow=boolean lastCol=boolean bandRow=boolean bandCol=boolean
CT_Table: tblPr=CT_TableProperties? tblGrid=CT_TableGrid tr=CT_TableRow*
tbl = CT_Table
CT_Cell3D: bevel=CT_Bevel lightRig=CT_LightRig? extLst=CT_OfficeArtExtensionList? ;
  prstMaterial=ST_PresetMaterialType
CT_ThemeableLineStyle: (ln=CT_LineProperties | lnRef=CT_StyleMatrixReference)
CT_TableStyleTextStyle: EG_ThemeableFontStyles? EG_ColorChoice? extLst=CT_OfficeArtExtensionList? ;
  b=ST_OnOffStyleType i=ST_OnOffStyleType
CT_TableCellBorderStyle: left=CT_ThemeableLineStyle? right=CT_ThemeableLineStyle? top=CT_ThemeableLineStyle?
  bottom=CT_ThemeableLineStyle? insideH=CT_ThemeableLineStyle? insideV=CT_ThemeableLineStyle?
  tl2br=CT_ThemeableLineStyle? tr2bl=CT_ThemeableLineStyle? extLst=CT_OfficeArtExtensionList?
CT_TableBackgroundStyle: EG_ThemeableFillStyle? EG_ThemeableEffectStyle?
CT_TableStyleCellStyle: tcBdr=CT_TableCellBorderStyle? EG_ThemeableFillStyle? cell3D=CT_Cell3D?
CT_TablePartStyle: tcTxStyle=CT_TableStyleTextStyle? tcStyle=CT_TableStyleCellStyle?
CT_TableStyle: tblBg=CT_TableBackgroundStyle? wholeTbl=CT_TablePartStyle? band1H=CT_TablePartStyle?
  band2H=CT_TablePartStyle? band1V=CT_TablePartStyle? band2V=CT_TablePartStyle? lastCol=CT_TablePartStyle?
  firstCol=CT_TablePartStyle? lastRow=CT_TablePartStyle? seCell=CT_TablePartStyle? swCell=CT_TablePartStyle?
  firstRow=CT_TablePartStyle? neCell=CT_TablePartStyle? nwCell=CT_TablePartStyle?
  extLst=CT_OfficeArtExtensionList? ; styleId=s:ST_Guid! styleName=string!
CT_TableStyleList: tblStyle=CT_TableStyle* ; def=s:ST_Guid!
tblStyleLst = CT_TableStyleList
CT_TextParagraph: pPr=CT_TextParagraphProperties? EG_TextRun* endParaRPr=CT_TextCharacterProperties?
CT_TextListStyle: defPPr=CT_TextParagraphProperties? lvl1pPr=CT_TextParagraphProperties?
  lvl2pPr=CT_TextParagraphProperties? lvl3pPr=CT_TextParagraphProperties?
  lvl4pPr=CT_TextParagraphProperties? lvl5pPr=CT_TextParagraphProperties?
  lvl6pPr=CT_TextParagraphProperties? lvl7pPr=CT_TextParagraphProperties?
  lvl8pPr=CT_TextParagraphProperties? lvl9pPr=CT_TextParagraphProperties? extLst=CT_OfficeArtExtensionList?
CT_TextNormalAutofit: ; fontScale=ST_TextFontScalePercentOrPercentString
  lnSpcReduction=ST_TextSpacingPercentOrPercentString
CT_TextShapeAutofit:
CT_TextNoAutofit:
CT_TextBodyProperties: prstTxWarp=CT_PresetTextShape? EG_TextAutofit? scene3d=CT_Scene3D? EG_Text3D?
  extLst=CT_OfficeArtExtensionList? ; rot=ST_Angle spcFirstLastPara=boolean
  vertOverflow=ST_TextVertOverflowType horzOverflow=ST_TextHorzOverflowType vert=ST_TextVerticalType
  wrap=ST_TextWrappingType lIns=ST_Coordinate32 tIns=ST_Coordinate32 rIns=ST_Coordinate32
  bIns=ST_Coordinate32 numCol=ST_TextColumnCount spcCol=ST_PositiveCoordinate32 rtlCol=boolean
  fromWordArt=boolean anchor=ST_TextAnchoringType anchorCtr=boolean forceAA=boolean upright=boolean
  compatLnSpc=boolean
CT_TextBody: bodyPr=CT_TextBodyProperties lstStyle=CT_TextListStyle? p=CT_TextParagraph+
CT_TextBulletColorFollowText:
CT_TextBulletSizeFollowText:
CT_TextBulletSizePercent: ; val=ST_TextBulletSizePercent!
CT_TextBulletSizePoint: ; val=ST_TextFontSize!
CT_TextBulletTypefaceFollowText:
CT_TextAutonumberBullet: ; type=ST_TextAutonumberScheme! startAt=ST_TextBulletStartAtNum
CT_TextCharBullet: ; char=string!
CT_TextBlipBullet: blip=CT_Blip
CT_TextNoBullet:
CT_TextFont: ; typeface=ST_TextTypeface! panose=s:ST_Panose pitchFamily=ST_PitchFamily charset=byte
CT_TextUnderlineLineFollowText:
CT_TextUnderlineFillFollowText:
CT_TextUnderlineFillGroupWrapper: EG_FillProperties
CT_TextCharacterProperties: ln=CT_LineProperties? EG_FillProperties? EG_EffectProperties?
  highlight=CT_Color? EG_TextUnderlineLine? EG_TextUnderlineFill? latin=CT_TextFont? ea=CT_TextFont?
  cs=CT_TextFont? sym=CT_TextFont? hlinkClick=CT_Hyperlink? hlinkMouseOver=CT_Hyperlink? rtl=CT_Boolean?
  extLst=CT_OfficeArtExtensionList? ; kumimoji=boolean lang=s:ST_Lang altLang=s:ST_Lang sz=ST_TextFontSize
  b=boolean i=boolean u=ST_TextUnderlineType strike=ST_TextStrikeType kern=ST_TextNonNegativePoint
  cap=ST_TextCapsType spc=ST_TextPoint normalizeH=boolean baseline=ST_Percentage noProof=boolean
  dirty=boolean err=boolean smtClean=boolean smtId=unsignedInt bmk=string
CT_Boolean: ; val=s:ST_OnOff
CT_TextSpacingPercent: ; val=ST_TextSpacingPercentOrPercentString!
CT_TextSpacingPoint: ; val=ST_TextSpacingPoint!
CT_TextTabStop: ; pos=ST_Coordinate32 algn=ST_TextTabAlignType
CT_TextTabStopList: tab=CT_TextTabStop{0,32}
CT_TextLineBreak: rPr=CT_TextCharacterProperties?
CT_TextSpacing: (spcPct=CT_TextSpacingPercent | spcPts=CT_TextSpacingPoint)
CT_TextParagraphProperties: lnSpc=CT_TextSpacing? spcBef=CT_TextSpacing? spcAft=CT_TextSpacing?
  EG_TextBulletColor? EG_TextBulletSize? EG_TextBulletTypeface? EG_TextBullet? tabLst=CT_TextTabStopList?
  defRPr=CT_TextCharacterProperties? extLst=CT_OfficeArtExtensionList? ; marL=ST_TextMargin
  marR=ST_TextMargin lvl=ST_TextIndentLevelType indent=ST_TextIndent algn=ST_TextAlignType
  defTabSz=ST_Coordinate32 rtl=boolean eaLnBrk=boolean fontAlgn=ST_TextFontAlignType latinLnBrk=boolean
  hangingPunct=boolean
CT_TextField: rPr=CT_TextCharacterProperties? pPr=CT_TextParagraphProperties? t=string? ; id=s:ST_Guid!
  type=string
CT_RegularTextRun: rPr=CT_TextCharacterProperties? t=string
)rows";

} // namespace vellox::check
