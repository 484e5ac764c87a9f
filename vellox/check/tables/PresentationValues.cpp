// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kPresentationValues[] = R"rows(
ST_TransitionSideDirectionType: {l u r d}
ST_TransitionCornerDirectionType: {lu ru ld rd}
ST_TransitionInOutDirectionType: {out in}
ST_TransitionEightDirectionType: ST_TransitionSideDirectionType | ST_TransitionCornerDirectionType
ST_TransitionSpeed: {slow med fast}
ST_TLTimeIndefinite: {indefinite}
ST_TLTime: unsignedInt | ST_TLTimeIndefinite
ST_TLTimeNodeID: unsignedInt
ST_IterateType: {el wd lt}
ST_TLChartSubelementType: {gridLegend series category ptInSeries ptInCategory}
ST_TLTriggerRuntimeNode: {first last all}
ST_TLTriggerEvent: {onBegin onEnd begin end onClick onDblClick onMouseOver onMouseOut onNext onPrev
  onStopAudio}
ST_TLTimeNodePresetClassType: {entr exit emph path verb mediacall}
ST_TLTimeNodeRestartType: {always whenNotActive never}
ST_TLTimeNodeFillType: {remove freeze hold transition}
ST_TLTimeNodeSyncType: {canSlip locked}
ST_TLTimeNodeMasterRelation: {sameClick lastClick nextClick}
ST_TLTimeNodeType: {clickEffect withEffect afterEffect mainSeq interactiveSeq clickPar withGroup afterGroup
  tmRoot}
ST_TLNextActionType: {none seek}
ST_TLPreviousActionType: {none skipTimed}
ST_TLBehaviorAdditiveType: {base sum repl mult none}
ST_TLBehaviorAccumulateType: {none always}
ST_TLBehaviorTransformType: {pt img}
ST_TLBehaviorOverrideType: {normal childStyle}
ST_TLTimeAnimateValueTime: a:ST_PositiveFixedPercentage | ST_TLTimeIndefinite
ST_TLAnimateBehaviorCalcMode: {discrete lin fmla}
ST_TLAnimateBehaviorValueType: {str num clr}
ST_TLAnimateColorSpace: {rgb hsl}
ST_TLAnimateColorDirection: {cw ccw}
ST_TLAnimateEffectTransition: {in out none}
ST_TLAnimateMotionBehaviorOrigin: {parent layout}
ST_TLAnimateMotionPathEditMode: {relative fixed}
ST_TLCommandType: {evt call verb}
ST_TLParaBuildType: {allAtOnce p cust whole}
ST_TLDiagramBuildType: {whole depthByNode depthByBranch breadthByNode breadthByLvl cw cwIn cwOut ccw ccwIn
  ccwOut inByRing outByRing up down allAtOnce cust}
ST_TLOleChartBuildType: {allAtOnce series category seriesEl categoryEl}
ST_Name: string
ST_Direction: {horz vert}
ST_Index: unsignedInt
ST_OleObjectFollowColorScheme: {none full textAndBackground}
ST_SlideId: unsignedInt 256..2147483647
ST_SlideMasterId: unsignedInt 2147483648..
ST_PhotoAlbumLayout: {fitToSlide 1pic 2pic 4pic 1picTitle 2picTitle 4picTitle}
ST_PhotoAlbumFrameShape: {frameStyle1 frameStyle2 frameStyle3 frameStyle4 frameStyle5 frameStyle6
  frameStyle7}
ST_SlideSizeCoordinate: a:ST_PositiveCoordinate32 914400..51206400
ST_SlideSizeType: {screen4x3 letter A4 35mm overhead banner custom ledger A3 B4ISO B5ISO B4JIS B5JIS
  hagakiCard screen16x9 screen16x10}
ST_BookmarkIdSeed: unsignedInt 1..2147483647
ST_WebColorType: {none browser presentationText presentationAccent whiteTextOnBlack blackTextOnWhite}
ST_WebScreenSize: {544x376 640x480 720x512 800x600 1024x768 1152x882 1152x900 1280x1024 1600x1200 1800x1400
  1920x1200}
ST_WebEncoding: string
ST_PrintWhat: {slides handouts1 handouts2 handouts3 handouts4 handouts6 handouts9 notes outline}
ST_PrintColorMode: {bw gray clr}
ST_PlaceholderType: {title body ctrTitle subTitle dt sldNum ftr hdr obj chart tbl clipArt dgm media sldImg
  pic}
ST_PlaceholderSize: {full half quarter}
ST_SlideLayoutType: {title tx twoColTx tbl txAndChart chartAndTx dgm chart txAndClipArt clipArtAndTx
  titleOnly blank txAndObj objAndTx objOnly obj txAndMedia mediaAndTx objOverTx txOverObj txAndTwoObj
  twoObjAndTx twoObjOverTx fourObj vertTx clipArtAndVertTx vertTitleAndTx vertTitleAndTxOverChart twoObj
  objAndTwoObj twoObjAndObj cust secHead twoTxTwoObj objTx picTx}
ST_SlideLayoutId: unsignedInt 2147483648..
ST_SplitterBarState: {minimized restored maximized}
ST_ViewType: {sldView sldMasterView notesView handoutView notesMasterView outlineView sldSorterView
  sldThumbnailView}
)rows";

} // namespace vellox::check
