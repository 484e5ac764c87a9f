// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kPresentationTypes[] = R"rows(
CT_SideDirectionTransition: ; dir=ST_TransitionSideDirectionType
CT_CornerDirectionTransition: ; dir=ST_TransitionCornerDirectionType
CT_EightDirectionTransition: ; dir=ST_TransitionEightDirectionType
CT_OrientationTransition: ; dir=ST_Direction
CT_InOutTransition: ; dir=ST_TransitionInOutDirectionType
CT_OptionalBlackTransition: ; thruBlk=boolean
CT_SplitTransition: ; orient=ST_Direction dir=ST_TransitionInOutDirectionType
CT_WheelTransition: ; spokes=unsignedInt
CT_TransitionStartSoundAction: snd=a:CT_EmbeddedWAVAudioFile ; loop=boolean
CT_TransitionSoundAction: (stSnd=CT_TransitionStartSoundAction | endSnd=CT_Empty)
CT_SlideTransition: (blinds=CT_OrientationTransition | checker=CT_OrientationTransition | circle=CT_Empty |
  dissolve=CT_Empty | comb=CT_OrientationTransition | cover=CT_EightDirectionTransition |
  cut=CT_OptionalBlackTransition | diamond=CT_Empty | fade=CT_OptionalBlackTransition | newsflash=CT_Empty |
  plus=CT_Empty | pull=CT_EightDirectionTransition | push=CT_SideDirectionTransition | random=CT_Empty |
  randomBar=CT_OrientationTransition | split=CT_SplitTransition | strips=CT_CornerDirectionTransition |
  wedge=CT_Empty | wheel=CT_WheelTransition | wipe=CT_SideDirectionTransition | zoom=CT_InOutTransition)?
  sndAc=CT_TransitionSoundAction? extLst=CT_ExtensionListModify? ; spd=ST_TransitionSpeed advClick=boolean
  advTm=unsignedInt
CT_TLIterateIntervalTime: ; val=ST_TLTime!
CT_TLIterateIntervalPercentage: ; val=a:ST_PositivePercentage!
CT_TLIterateData: (tmAbs=CT_TLIterateIntervalTime | tmPct=CT_TLIterateIntervalPercentage) ;
  type=ST_IterateType backwards=boolean
CT_TLSubShapeId: ; spid=a:ST_ShapeID!
CT_TLTextTargetElement: (charRg=CT_IndexRange | pRg=CT_IndexRange)?
CT_TLOleChartTargetElement: ; type=ST_TLChartSubelementType! lvl=unsignedInt
CT_TLShapeTargetElement: (bg=CT_Empty | subSp=CT_TLSubShapeId | oleChartEl=CT_TLOleChartTargetElement |
  txEl=CT_TLTextTargetElement | graphicEl=a:CT_AnimationElementChoice)? ; spid=a:ST_DrawingElementId!
CT_TLTimeTargetElement: (sldTgt=CT_Empty | sndTgt=a:CT_EmbeddedWAVAudioFile | spTgt=CT_TLShapeTargetElement
  | inkTgt=CT_TLSubShapeId)
CT_TLTriggerTimeNodeID: ; val=ST_TLTimeNodeID!
CT_TLTriggerRuntimeNode: ; val=ST_TLTriggerRuntimeNode!
CT_TLTimeCondition: (tgtEl=CT_TLTimeTargetElement | tn=CT_TLTriggerTimeNodeID |
  rtn=CT_TLTriggerRuntimeNode)? ; evt=ST_TLTriggerEvent delay=ST_TLTime
CT_TLTimeConditionList: cond=CT_TLTimeCondition+
CT_TimeNodeList: (par=CT_TLTimeNodeParallel | seq=CT_TLTimeNodeSequence | excl=CT_TLTimeNodeExclusive |
  anim=CT_TLAnimateBehavior | animClr=CT_TLAnimateColorBehavior | animEffect=CT_TLAnimateEffectBehavior |
  animMotion=CT_TLAnimateMotionBehavior | animRot=CT_TLAnimateRotationBehavior |
  animScale=CT_TLAnimateScaleBehavior | cmd=CT_TLCommandBehavior | set=CT_TLSetBehavior |
  audio=CT_TLMediaNodeAudio | video=CT_TLMediaNodeVideo)+
CT_TLCommonTimeNodeData: stCondLst=CT_TLTimeConditionList? endCondLst=CT_TLTimeConditionList?
  endSync=CT_TLTimeCondition? iterate=CT_TLIterateData? childTnLst=CT_TimeNodeList?
  subTnLst=CT_TimeNodeList? ; id=ST_TLTimeNodeID presetID=int presetClass=ST_TLTimeNodePresetClassType
  presetSubtype=int dur=ST_TLTime repeatCount=ST_TLTime repeatDur=ST_TLTime spd=a:ST_Percentage
  accel=a:ST_PositiveFixedPercentage decel=a:ST_PositiveFixedPercentage autoRev=boolean
  restart=ST_TLTimeNodeRestartType fill=ST_TLTimeNodeFillType syncBehavior=ST_TLTimeNodeSyncType
  tmFilter=string evtFilter=string display=boolean masterRel=ST_TLTimeNodeMasterRelation bldLvl=int
  grpId=unsignedInt afterEffect=boolean nodeType=ST_TLTimeNodeType nodePh=boolean
CT_TLTimeNodeParallel: cTn=CT_TLCommonTimeNodeData
CT_TLTimeNodeSequence: cTn=CT_TLCommonTimeNodeData prevCondLst=CT_TLTimeConditionList?
  nextCondLst=CT_TLTimeConditionList? ; concurrent=boolean prevAc=ST_TLPreviousActionType
  nextAc=ST_TLNextActionType
CT_TLTimeNodeExclusive: cTn=CT_TLCommonTimeNodeData
CT_TLBehaviorAttributeNameList: attrName=string+
CT_TLCommonBehaviorData: cTn=CT_TLCommonTimeNodeData tgtEl=CT_TLTimeTargetElement
  attrNameLst=CT_TLBehaviorAttributeNameList? ; additive=ST_TLBehaviorAdditiveType
  accumulate=ST_TLBehaviorAccumulateType xfrmType=ST_TLBehaviorTransformType from=string to=string by=string
  rctx=string override=ST_TLBehaviorOverrideType
CT_TLAnimVariantBooleanVal: ; val=boolean!
CT_TLAnimVariantIntegerVal: ; val=int!
CT_TLAnimVariantFloatVal: ; val=float!
CT_TLAnimVariantStringVal: ; val=string!
CT_TLAnimVariant: (boolVal=CT_TLAnimVariantBooleanVal | intVal=CT_TLAnimVariantIntegerVal |
  fltVal=CT_TLAnimVariantFloatVal | strVal=CT_TLAnimVariantStringVal | clrVal=a:CT_Color)
CT_TLTimeAnimateValue: val=CT_TLAnimVariant? ; tm=ST_TLTimeAnimateValueTime fmla=string
CT_TLTimeAnimateValueList: tav=CT_TLTimeAnimateValue*
CT_TLAnimateBehavior: cBhvr=CT_TLCommonBehaviorData tavLst=CT_TLTimeAnimateValueList? ; by=string
  from=string to=string calcmode=ST_TLAnimateBehaviorCalcMode valueType=ST_TLAnimateBehaviorValueType
CT_TLByRgbColorTransform: ; r=a:ST_FixedPercentage! g=a:ST_FixedPercentage! b=a:ST_FixedPercentage!
CT_TLByHslColorTransform: ; h=a:ST_Angle! s=a:ST_FixedPercentage! l=a:ST_FixedPercentage!
CT_TLByAnimateColorTransform: (rgb=CT_TLByRgbColorTransform | hsl=CT_TLByHslColorTransform)
CT_TLAnimateColorBehavior: cBhvr=CT_TLCommonBehaviorData by=CT_TLByAnimateColorTransform? from=a:CT_Color?
  to=a:CT_Color? ; clrSpc=ST_TLAnimateColorSpace dir=ST_TLAnimateColorDirection
CT_TLAnimateEffectBehavior: cBhvr=CT_TLCommonBehaviorData progress=CT_TLAnimVariant? ;
  transition=ST_TLAnimateEffectTransition filter=string prLst=string
CT_TLPoint: ; x=a:ST_Percentage! y=a:ST_Percentage!
CT_TLAnimateMotionBehavior: cBhvr=CT_TLCommonBehaviorData by=CT_TLPoint? from=CT_TLPoint? to=CT_TLPoint?
  rCtr=CT_TLPoint? ; origin=ST_TLAnimateMotionBehaviorOrigin path=string
  pathEditMode=ST_TLAnimateMotionPathEditMode rAng=a:ST_Angle ptsTypes=string
CT_TLAnimateRotationBehavior: cBhvr=CT_TLCommonBehaviorData ; by=a:ST_Angle from=a:ST_Angle to=a:ST_Angle
CT_TLAnimateScaleBehavior: cBhvr=CT_TLCommonBehaviorData by=CT_TLPoint? from=CT_TLPoint? to=CT_TLPoint? ;
  zoomContents=boolean
CT_TLCommandBehavior: cBhvr=CT_TLCommonBehaviorData ; type=ST_TLCommandType cmd=string
CT_TLSetBehavior: cBhvr=CT_TLCommonBehaviorData to=CT_TLAnimVariant?
CT_TLCommonMediaNodeData: cTn=CT_TLCommonTimeNodeData tgtEl=CT_TLTimeTargetElement ;
  vol=a:ST_PositiveFixedPercentage mute=boolean numSld=unsignedInt showWhenStopped=boolean
CT_TLMediaNodeAudio: cMediaNode=CT_TLCommonMediaNodeData ; isNarration=boolean
CT_TLMediaNodeVideo: cMediaNode=CT_TLCommonMediaNodeData ; fullScrn=boolean
AG_TLBuild: ; spid=a:ST_DrawingElementId! grpId=unsignedInt! uiExpand=boolean
CT_TLTemplate: tnLst=CT_TimeNodeList ; lvl=unsignedInt
CT_TLTemplateList: tmpl=CT_TLTemplate{0,9}
CT_TLBuildParagraph: tmplLst=CT_TLTemplateList? ; AG_TLBuild build=ST_TLParaBuildType bldLvl=unsignedInt
  animBg=boolean autoUpdateAnimBg=boolean rev=boolean advAuto=ST_TLTime
CT_TLBuildDiagram: ; AG_TLBuild bld=ST_TLDiagramBuildType
CT_TLOleBuildChart: ; AG_TLBuild bld=ST_TLOleChartBuildType animBg=boolean
CT_TLGraphicalObjectBuild: (bldAsOne=CT_Empty | bldSub=a:CT_AnimationGraphicalObjectBuildProperties) ;
  AG_TLBuild
CT_BuildList: (bldP=CT_TLBuildParagraph | bldDgm=CT_TLBuildDiagram | bldOleChart=CT_TLOleBuildChart |
  bldGraphic=CT_TLGraphicalObjectBuild)+
CT_SlideTiming: tnLst=CT_TimeNodeList? bldLst=CT_BuildList? extLst=CT_ExtensionListModify?
CT_Empty:
CT_IndexRange: ; st=ST_Index! end=ST_Index!
CT_SlideRelationshipListEntry: ; r:id=r:ST_RelationshipId!
CT_SlideRelationshipList: sld=CT_SlideRelationshipListEntry*
CT_CustomShowId: ; id=unsignedInt!
EG_SlideListChoice: (sldAll=CT_Empty | sldRg=CT_IndexRange | custShow=CT_CustomShowId)
CT_CustomerData: ; r:id=r:ST_RelationshipId!
CT_TagsData: ; r:id=r:ST_RelationshipId!
CT_CustomerDataList: (custData=CT_CustomerData* tags=CT_TagsData?)?
CT_Extension: any* ; uri=token!
EG_ExtensionList: ext=CT_Extension*
CT_ExtensionList: EG_ExtensionList?
CT_ExtensionListModify: EG_ExtensionList? ; mod=boolean
CT_CommentAuthor: extLst=CT_ExtensionList? ; id=unsignedInt! name=ST_Name! initials=ST_Name!
  lastIdx=unsignedInt! clrIdx=unsignedInt!
CT_CommentAuthorList: cmAuthor=CT_CommentAuthor*
cmAuthorLst = CT_CommentAuthorList
CT_Comment: pos=a:CT_Point2D text=string extLst=CT_ExtensionListModify? ; authorId=unsignedInt! dt=dateTime
  idx=ST_Index!
CT_CommentList: cm=CT_Comment*
cmLst = CT_CommentList
AG_Ole: ; spid=a:ST_ShapeID name=string showAsIcon=boolean r:id=r:ST_RelationshipId
  imgW=a:ST_PositiveCoordinate32 imgH=a:ST_PositiveCoordinate32
CT_OleObjectEmbed: extLst=CT_ExtensionList? ; followColorScheme=ST_OleObjectFollowColorScheme
CT_OleObjectLink: extLst=CT_ExtensionList? ; updateAutomatic=boolean
CT_OleObject: (embed=CT_OleObjectEmbed | link=CT_OleObjectLink) pic=CT_Picture? ; AG_Ole progId=string
oleObj = CT_OleObject
CT_Control: extLst=CT_ExtensionList? pic=CT_Picture? ; AG_Ole
CT_ControlList: control=CT_Control*
CT_SlideIdListEntry: extLst=CT_ExtensionList? ; id=ST_SlideId! r:id=r:ST_RelationshipId!
CT_SlideIdList: sldId=CT_SlideIdListEntry*
CT_SlideMasterIdListEntry: extLst=CT_ExtensionList? ; id=ST_SlideMasterId r:id=r:ST_RelationshipId!
CT_SlideMasterIdList: sldMasterId=CT_SlideMasterIdListEntry*
CT_NotesMasterIdListEntry: extLst=CT_ExtensionList? ; r:id=r:ST_RelationshipId!
CT_NotesMasterIdList: notesMasterId=CT_NotesMasterIdListEntry?
CT_HandoutMasterIdListEntry: extLst=CT_ExtensionList? ; r:id=r:ST_RelationshipId!
CT_HandoutMasterIdList: handoutMasterId=CT_HandoutMasterIdListEntry?
CT_EmbeddedFontDataId: ; r:id=r:ST_RelationshipId!
CT_EmbeddedFontListEntry: font=a:CT_TextFont regular=CT_EmbeddedFontDataId? bold=CT_EmbeddedFontDataId?
  italic=CT_EmbeddedFontDataId? boldItalic=CT_EmbeddedFontDataId?
CT_EmbeddedFontList: embeddedFont=CT_EmbeddedFontListEntry*
CT_SmartTags: ; r:id=r:ST_RelationshipId!
CT_CustomShow: sldLst=CT_SlideRelationshipList extLst=CT_ExtensionList? ; name=ST_Name! id=unsignedInt!
CT_CustomShowList: custShow=CT_CustomShow*
CT_PhotoAlbum: extLst=CT_ExtensionList? ; bw=boolean showCaptions=boolean layout=ST_PhotoAlbumLayout
  frame=ST_PhotoAlbumFrameShape
CT_SlideSize: ; cx=ST_SlideSizeCoordinate! cy=ST_SlideSizeCoordinate! type=ST_SlideSizeType
CT_Kinsoku: ; lang=string invalStChars=string! invalEndChars=string!
CT_ModifyVerifier: ; algorithmName=string hashValue=base64Binary saltValue=base64Binary
  spinValue=unsignedInt cryptProviderType=s:ST_CryptProv cryptAlgorithmClass=s:ST_AlgClass
  cryptAlgorithmType=s:ST_AlgType cryptAlgorithmSid=unsignedInt spinCount=unsignedInt saltData=base64Binary
  hashData=base64Binary cryptProvider=string algIdExt=unsignedInt algIdExtSource=string
  cryptProviderTypeExt=unsignedInt cryptProviderTypeExtSource=string
CT_Presentation: sldMasterIdLst=CT_SlideMasterIdList? notesMasterIdLst=CT_NotesMasterIdList?
  handoutMasterIdLst=CT_HandoutMasterIdList? sldIdLst=CT_SlideIdList? sldSz=CT_SlideSize?
  notesSz=a:CT_PositiveSize2D smartTags=CT_SmartTags? embeddedFontLst=CT_EmbeddedFontList?
  custShowLst=CT_CustomShowList? photoAlbum=CT_PhotoAlbum? custDataLst=CT_CustomerDataList?
  kinsoku=CT_Kinsoku? defaultTextStyle=a:CT_TextListStyle? modifyVerifier=CT_ModifyVerifier?
  extLst=CT_ExtensionList? ; serverZoom=a:ST_Percentage firstSlideNum=int showSpecialPlsOnTitleSld=boolean
  rtl=boolean removePersonalInfoOnSave=boolean compatMode=boolean strictFirstAndLastChars=boolean
  embedTrueTypeFonts=boolean saveSubsetFonts=boolean autoCompressPictures=boolean
  bookmarkIdSeed=ST_BookmarkIdSeed conformance=s:ST_ConformanceClass
presentation = CT_Presentation
CT_HtmlPublishProperties: EG_SlideListChoice extLst=CT_ExtensionList? ; showSpeakerNotes=boolean
  target=string title=string r:id=r:ST_RelationshipId!
CT_WebProperties: extLst=CT_ExtensionList? ; showAnimation=boolean resizeGraphics=boolean allowPng=boolean
  relyOnVml=boolean organizeInFolders=boolean useLongFilenames=boolean imgSz=ST_WebScreenSize
  encoding=ST_WebEncoding clr=ST_WebColorType
CT_PrintProperties: extLst=CT_ExtensionList? ; prnWhat=ST_PrintWhat clrMode=ST_PrintColorMode
  hiddenSlides=boolean scaleToFitPaper=boolean frameSlides=boolean
CT_ShowInfoBrowse: ; showScrollbar=boolean
CT_ShowInfoKiosk: ; restart=unsignedInt
EG_ShowType: (present=CT_Empty | browse=CT_ShowInfoBrowse | kiosk=CT_ShowInfoKiosk)
CT_ShowProperties: (EG_ShowType? EG_SlideListChoice? penClr=a:CT_Color? extLst=CT_ExtensionList?)? ;
  loop=boolean showNarration=boolean showAnimation=boolean useTimings=boolean
CT_PresentationProperties: htmlPubPr=CT_HtmlPublishProperties? webPr=CT_WebProperties?
  prnPr=CT_PrintProperties? showPr=CT_ShowProperties? clrMru=a:CT_ColorMRU? extLst=CT_ExtensionList?
presentationPr = CT_PresentationProperties
CT_HeaderFooter: extLst=CT_ExtensionListModify? ; sldNum=boolean hdr=boolean ftr=boolean dt=boolean
CT_Placeholder: extLst=CT_ExtensionListModify? ; type=ST_PlaceholderType orient=ST_Direction
  sz=ST_PlaceholderSize idx=unsignedInt hasCustomPrompt=boolean
CT_ApplicationNonVisualDrawingProps: ph=CT_Placeholder? a:EG_Media? custDataLst=CT_CustomerDataList?
  extLst=CT_ExtensionList? ; isPhoto=boolean userDrawn=boolean
CT_ShapeNonVisual: cNvPr=a:CT_NonVisualDrawingProps cNvSpPr=a:CT_NonVisualDrawingShapeProps
  nvPr=CT_ApplicationNonVisualDrawingProps
CT_Shape: nvSpPr=CT_ShapeNonVisual spPr=a:CT_ShapeProperties style=a:CT_ShapeStyle? txBody=a:CT_TextBody?
  extLst=CT_ExtensionListModify? ; useBgFill=boolean
CT_ConnectorNonVisual: cNvPr=a:CT_NonVisualDrawingProps cNvCxnSpPr=a:CT_NonVisualConnectorProperties
  nvPr=CT_ApplicationNonVisualDrawingProps
CT_Connector: nvCxnSpPr=CT_ConnectorNonVisual spPr=a:CT_ShapeProperties style=a:CT_ShapeStyle?
  extLst=CT_ExtensionListModify?
CT_PictureNonVisual: cNvPr=a:CT_NonVisualDrawingProps cNvPicPr=a:CT_NonVisualPictureProperties
  nvPr=CT_ApplicationNonVisualDrawingProps
CT_Picture: nvPicPr=CT_PictureNonVisual blipFill=a:CT_BlipFillProperties spPr=a:CT_ShapeProperties
  style=a:CT_ShapeStyle? extLst=CT_ExtensionListModify?
CT_GraphicalObjectFrameNonVisual: cNvPr=a:CT_NonVisualDrawingProps
  cNvGraphicFramePr=a:CT_NonVisualGraphicFrameProperties nvPr=CT_ApplicationNonVisualDrawingProps
CT_GraphicalObjectFrame: nvGraphicFramePr=CT_GraphicalObjectFrameNonVisual xfrm=a:CT_Transform2D a:graphic
  extLst=CT_ExtensionListModify? ; bwMode=a:ST_BlackWhiteMode
CT_GroupShapeNonVisual: cNvPr=a:CT_NonVisualDrawingProps cNvGrpSpPr=a:CT_NonVisualGroupDrawingShapeProps
  nvPr=CT_ApplicationNonVisualDrawingProps
CT_GroupShape: nvGrpSpPr=CT_GroupShapeNonVisual grpSpPr=a:CT_GroupShapeProperties (sp=CT_Shape |
  grpSp=CT_GroupShape | graphicFrame=CT_GraphicalObjectFrame | cxnSp=CT_Connector | pic=CT_Picture |
  contentPart=CT_Rel)* extLst=CT_ExtensionListModify?
CT_Rel: ; r:id=r:ST_RelationshipId!
EG_TopLevelSlide: clrMap=a:CT_ColorMapping
EG_ChildSlide: clrMapOvr=a:CT_ColorMappingOverride?
AG_ChildSlide: ; showMasterSp=boolean showMasterPhAnim=boolean
CT_BackgroundProperties: a:EG_FillProperties a:EG_EffectProperties? extLst=CT_ExtensionList? ;
  shadeToTitle=boolean
EG_Background: (bgPr=CT_BackgroundProperties | bgRef=a:CT_StyleMatrixReference)
CT_Background: EG_Background ; bwMode=a:ST_BlackWhiteMode
CT_CommonSlideData: bg=CT_Background? spTree=CT_GroupShape custDataLst=CT_CustomerDataList?
  controls=CT_ControlList? extLst=CT_ExtensionList? ; name=string
CT_Slide: cSld=CT_CommonSlideData EG_ChildSlide? transition=CT_SlideTransition? timing=CT_SlideTiming?
  extLst=CT_ExtensionListModify? ; AG_ChildSlide show=boolean
sld = CT_Slide
CT_SlideLayout: cSld=CT_CommonSlideData EG_ChildSlide? transition=CT_SlideTransition? timing=CT_SlideTiming?
  hf=CT_HeaderFooter? extLst=CT_ExtensionListModify? ; AG_ChildSlide matchingName=string
  type=ST_SlideLayoutType preserve=boolean userDrawn=boolean
sldLayout = CT_SlideLayout
CT_SlideMasterTextStyles: titleStyle=a:CT_TextListStyle? bodyStyle=a:CT_TextListStyle?
  otherStyle=a:CT_TextListStyle? extLst=CT_ExtensionList?
CT_SlideLayoutIdListEntry: extLst=CT_ExtensionList? ; id=ST_SlideLayoutId r:id=r:ST_RelationshipId!
CT_SlideLayoutIdList: sldLayoutId=CT_SlideLayoutIdListEntry*
CT_SlideMaster: cSld=CT_CommonSlideData EG_TopLevelSlide sldLayoutIdLst=CT_SlideLayoutIdList?
  transition=CT_SlideTransition? timing=CT_SlideTiming? hf=CT_HeaderFooter?
  txStyles=CT_SlideMasterTextStyles? extLst=CT_ExtensionListModify? ; preserve=boolean
sldMaster = CT_SlideMaster
CT_HandoutMaster: cSld=CT_CommonSlideData EG_TopLevelSlide hf=CT_HeaderFooter?
  extLst=CT_ExtensionListModify?
handoutMaster = CT_HandoutMaster
CT_NotesMaster: cSld=CT_CommonSlideData EG_TopLevelSlide hf=CT_HeaderFooter? notesStyle=a:CT_TextListStyle?
  extLst=CT_ExtensionListModify?
notesMaster = CT_NotesMaster
CT_NotesSlide: cSld=CT_CommonSlideData EG_ChildSlide? extLst=CT_ExtensionListModify? ; AG_ChildSlide
notes = CT_NotesSlide
CT_SlideSyncProperties: extLst=CT_ExtensionList? ; serverSldId=string! serverSldModifiedTime=dateTime!
  clientInsertedTime=dateTime!
sldSyncPr = CT_SlideSyncProperties
CT_StringTag: ; name=string! val=string!
CT_TagList: tag=CT_StringTag*
tagLst = CT_TagList
CT_NormalViewPortion: ; sz=a:ST_PositiveFixedPercentage! autoAdjust=boolean
CT_NormalViewProperties: restoredLeft=CT_NormalViewPortion restoredTop=CT_NormalViewPortion
  extLst=CT_ExtensionList? ; showOutlineIcons=boolean snapVertSplitter=boolean
  vertBarState=ST_SplitterBarState horzBarState=ST_SplitterBarState preferSingleView=boolean
CT_CommonViewProperties: scale=a:CT_Scale2D origin=a:CT_Point2D ; varScale=boolean
CT_NotesTextViewProperties: cViewPr=CT_CommonViewProperties extLst=CT_ExtensionList?
CT_OutlineViewSlideEntry: ; r:id=r:ST_RelationshipId! collapse=boolean
CT_OutlineViewSlideList: sld=CT_OutlineViewSlideEntry*
CT_OutlineViewProperties: cViewPr=CT_CommonViewProperties sldLst=CT_OutlineViewSlideList?
  extLst=CT_ExtensionList?
CT_SlideSorterViewProperties: cViewPr=CT_CommonViewProperties extLst=CT_ExtensionList? ;
  showFormatting=boolean
CT_Guide: ; orient=ST_Direction pos=a:ST_Coordinate32
CT_GuideList: (guide=CT_Guide*)?
CT_CommonSlideViewProperties: cViewPr=CT_CommonViewProperties guideLst=CT_GuideList? ; snapToGrid=boolean
  snapToObjects=boolean showGuides=boolean
CT_SlideViewProperties: cSldViewPr=CT_CommonSlideViewProperties extLst=CT_ExtensionList?
CT_NotesViewProperties: cSldViewPr=CT_CommonSlideViewProperties extLst=CT_ExtensionList?
CT_ViewProperties: (normalViewPr=CT_NormalViewProperties? slideViewPr=CT_SlideViewProperties?
  outlineViewPr=CT_OutlineViewProperties? notesTextViewPr=CT_NotesTextViewProperties?
  sorterViewPr=CT_SlideSorterViewProperties? notesViewPr=CT_NotesViewProperties?
  gridSpacing=a:CT_PositiveSize2D? extLst=CT_ExtensionList?)? ; lastView=ST_ViewType showComments=boolean
viewPr = CT_ViewProperties
)rows";

} // namespace vellox::check
