// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kChartTypes[] = R"rows(
CT_Boolean: ; val=boolean
CT_Double: ; val=double!
CT_UnsignedInt: ; val=ST_SignedOrUnsignedInt!
CT_RelId: ; r:id=r:ST_RelationshipId!
CT_Extension: any* ; uri=token
CT_ExtensionList: ext=CT_Extension*
CT_NumVal: v=s:ST_Xstring ; idx=unsignedInt! formatCode=s:ST_Xstring
CT_NumData: formatCode=s:ST_Xstring? ptCount=CT_UnsignedInt? pt=CT_NumVal* extLst=CT_ExtensionList?
CT_NumRef: f=string numCache=CT_NumData? extLst=CT_ExtensionList?
CT_NumDataSource: (numRef=CT_NumRef | numLit=CT_NumData)
CT_StrVal: v=s:ST_Xstring ; idx=unsignedInt!
CT_StrData: ptCount=CT_UnsignedInt? pt=CT_StrVal* extLst=CT_ExtensionList?
CT_StrRef: f=string strCache=CT_StrData? extLst=CT_ExtensionList?
CT_Tx: (strRef=CT_StrRef | rich=a:CT_TextBody)
CT_TextLanguageID: ; val=s:ST_Lang!
CT_Lvl: pt=CT_StrVal*
CT_MultiLvlStrData: ptCount=CT_UnsignedInt? lvl=CT_Lvl* extLst=CT_ExtensionList?
CT_MultiLvlStrRef: f=string multiLvlStrCache=CT_MultiLvlStrData? extLst=CT_ExtensionList?
CT_AxDataSource: (multiLvlStrRef=CT_MultiLvlStrRef | numRef=CT_NumRef | numLit=CT_NumData | strRef=CT_StrRef
  | strLit=CT_StrData)
CT_SerTx: (strRef=CT_StrRef | v=s:ST_Xstring)
CT_LayoutTarget: ; val=ST_LayoutTarget
CT_LayoutMode: ; val=ST_LayoutMode
CT_ManualLayout: layoutTarget=CT_LayoutTarget? xMode=CT_LayoutMode? yMode=CT_LayoutMode?
  wMode=CT_LayoutMode? hMode=CT_LayoutMode? x=CT_Double? y=CT_Double? w=CT_Double? h=CT_Double?
  extLst=CT_ExtensionList?
CT_Layout: manualLayout=CT_ManualLayout? extLst=CT_ExtensionList?
CT_Title: tx=CT_Tx? layout=CT_Layout? overlay=CT_Boolean? spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody?
  extLst=CT_ExtensionList?
CT_RotX: ; val=ST_RotX
CT_HPercent: ; val=ST_HPercent
CT_RotY: ; val=ST_RotY
CT_DepthPercent: ; val=ST_DepthPercent
CT_Perspective: ; val=ST_Perspective
CT_View3D: rotX=CT_RotX? hPercent=CT_HPercent? rotY=CT_RotY? depthPercent=CT_DepthPercent?
  rAngAx=CT_Boolean? perspective=CT_Perspective? extLst=CT_ExtensionList?
CT_Surface: thickness=CT_Thickness? spPr=a:CT_ShapeProperties? pictureOptions=CT_PictureOptions?
  extLst=CT_ExtensionList?
CT_Thickness: ; val=ST_Thickness!
CT_DTable: showHorzBorder=CT_Boolean? showVertBorder=CT_Boolean? showOutline=CT_Boolean?
  showKeys=CT_Boolean? spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody? extLst=CT_ExtensionList?
CT_GapAmount: ; val=ST_GapAmount
CT_Overlap: ; val=ST_Overlap
CT_BubbleScale: ; val=ST_BubbleScale
CT_SizeRepresents: ; val=ST_SizeRepresents
CT_FirstSliceAng: ; val=ST_FirstSliceAng
CT_HoleSize: ; val=ST_HoleSize
CT_SplitType: ; val=ST_SplitType
CT_CustSplit: secondPiePt=CT_UnsignedInt*
CT_SecondPieSize: ; val=ST_SecondPieSize
CT_NumFmt: ; formatCode=s:ST_Xstring! sourceLinked=boolean
CT_LblAlgn: ; val=ST_LblAlgn!
CT_DLblPos: ; val=ST_DLblPos!
EG_DLblShared: (numFmt=CT_NumFmt? spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody? dLblPos=CT_DLblPos?
  showLegendKey=CT_Boolean? showVal=CT_Boolean? showCatName=CT_Boolean? showSerName=CT_Boolean?
  showPercent=CT_Boolean? showBubbleSize=CT_Boolean? separator=string?)
EG_DLbl: (layout=CT_Layout? tx=CT_Tx? EG_DLblShared)
CT_DLbl: idx=CT_UnsignedInt (delete=CT_Boolean | EG_DLbl) extLst=CT_ExtensionList?
EG_DLbls: (EG_DLblShared showLeaderLines=CT_Boolean? leaderLines=CT_ChartLines?)
CT_DLbls: dLbl=CT_DLbl* (delete=CT_Boolean | EG_DLbls) extLst=CT_ExtensionList?
CT_MarkerStyle: ; val=ST_MarkerStyle!
CT_MarkerSize: ; val=ST_MarkerSize
CT_Marker: symbol=CT_MarkerStyle? size=CT_MarkerSize? spPr=a:CT_ShapeProperties? extLst=CT_ExtensionList?
CT_DPt: idx=CT_UnsignedInt invertIfNegative=CT_Boolean? marker=CT_Marker? bubble3D=CT_Boolean?
  explosion=CT_UnsignedInt? spPr=a:CT_ShapeProperties? pictureOptions=CT_PictureOptions?
  extLst=CT_ExtensionList?
CT_TrendlineType: ; val=ST_TrendlineType
CT_Order: ; val=ST_Order
CT_Period: ; val=ST_Period
CT_TrendlineLbl: layout=CT_Layout? tx=CT_Tx? numFmt=CT_NumFmt? spPr=a:CT_ShapeProperties?
  txPr=a:CT_TextBody? extLst=CT_ExtensionList?
CT_Trendline: name=string? spPr=a:CT_ShapeProperties? trendlineType=CT_TrendlineType order=CT_Order?
  period=CT_Period? forward=CT_Double? backward=CT_Double? intercept=CT_Double? dispRSqr=CT_Boolean?
  dispEq=CT_Boolean? trendlineLbl=CT_TrendlineLbl? extLst=CT_ExtensionList?
CT_ErrDir: ; val=ST_ErrDir!
CT_ErrBarType: ; val=ST_ErrBarType
CT_ErrValType: ; val=ST_ErrValType
CT_ErrBars: errDir=CT_ErrDir? errBarType=CT_ErrBarType errValType=CT_ErrValType noEndCap=CT_Boolean?
  plus=CT_NumDataSource? minus=CT_NumDataSource? val=CT_Double? spPr=a:CT_ShapeProperties?
  extLst=CT_ExtensionList?
CT_UpDownBar: spPr=a:CT_ShapeProperties?
CT_UpDownBars: gapWidth=CT_GapAmount? upBars=CT_UpDownBar? downBars=CT_UpDownBar? extLst=CT_ExtensionList?
EG_SerShared: (idx=CT_UnsignedInt order=CT_UnsignedInt tx=CT_SerTx? spPr=a:CT_ShapeProperties?)
CT_LineSer: EG_SerShared marker=CT_Marker? dPt=CT_DPt* dLbls=CT_DLbls? trendline=CT_Trendline*
  errBars=CT_ErrBars? cat=CT_AxDataSource? val=CT_NumDataSource? smooth=CT_Boolean? extLst=CT_ExtensionList?
CT_ScatterSer: EG_SerShared marker=CT_Marker? dPt=CT_DPt* dLbls=CT_DLbls? trendline=CT_Trendline*
  errBars=CT_ErrBars{0,2} xVal=CT_AxDataSource? yVal=CT_NumDataSource? smooth=CT_Boolean?
  extLst=CT_ExtensionList?
CT_RadarSer: EG_SerShared marker=CT_Marker? dPt=CT_DPt* dLbls=CT_DLbls? cat=CT_AxDataSource?
  val=CT_NumDataSource? extLst=CT_ExtensionList?
CT_BarSer: EG_SerShared invertIfNegative=CT_Boolean? pictureOptions=CT_PictureOptions? dPt=CT_DPt*
  dLbls=CT_DLbls? trendline=CT_Trendline* errBars=CT_ErrBars? cat=CT_AxDataSource? val=CT_NumDataSource?
  shape=CT_Shape? extLst=CT_ExtensionList?
CT_AreaSer: EG_SerShared pictureOptions=CT_PictureOptions? dPt=CT_DPt* dLbls=CT_DLbls?
  trendline=CT_Trendline* errBars=CT_ErrBars{0,2} cat=CT_AxDataSource? val=CT_NumDataSource?
  extLst=CT_ExtensionList?
CT_PieSer: EG_SerShared explosion=CT_UnsignedInt? dPt=CT_DPt* dLbls=CT_DLbls? cat=CT_AxDataSource?
  val=CT_NumDataSource? extLst=CT_ExtensionList?
CT_BubbleSer: EG_SerShared invertIfNegative=CT_Boolean? dPt=CT_DPt* dLbls=CT_DLbls? trendline=CT_Trendline*
  errBars=CT_ErrBars{0,2} xVal=CT_AxDataSource? yVal=CT_NumDataSource? bubbleSize=CT_NumDataSource?
  bubble3D=CT_Boolean? extLst=CT_ExtensionList?
CT_SurfaceSer: EG_SerShared cat=CT_AxDataSource? val=CT_NumDataSource? extLst=CT_ExtensionList?
CT_Grouping: ; val=ST_Grouping
CT_ChartLines: spPr=a:CT_ShapeProperties?
EG_LineChartShared: (grouping=CT_Grouping varyColors=CT_Boolean? ser=CT_LineSer* dLbls=CT_DLbls?
  dropLines=CT_ChartLines?)
CT_LineChart: EG_LineChartShared hiLowLines=CT_ChartLines? upDownBars=CT_UpDownBars? marker=CT_Boolean?
  smooth=CT_Boolean? axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_Line3DChart: EG_LineChartShared gapDepth=CT_GapAmount? axId=CT_UnsignedInt{3,3} extLst=CT_ExtensionList?
CT_StockChart: ser=CT_LineSer{3,4} dLbls=CT_DLbls? dropLines=CT_ChartLines? hiLowLines=CT_ChartLines?
  upDownBars=CT_UpDownBars? axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_ScatterStyle: ; val=ST_ScatterStyle
CT_ScatterChart: scatterStyle=CT_ScatterStyle varyColors=CT_Boolean? ser=CT_ScatterSer* dLbls=CT_DLbls?
  axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_RadarStyle: ; val=ST_RadarStyle
CT_RadarChart: radarStyle=CT_RadarStyle varyColors=CT_Boolean? ser=CT_RadarSer* dLbls=CT_DLbls?
  axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_BarGrouping: ; val=ST_BarGrouping
CT_BarDir: ; val=ST_BarDir
CT_Shape: ; val=ST_Shape
EG_BarChartShared: (barDir=CT_BarDir grouping=CT_BarGrouping? varyColors=CT_Boolean? ser=CT_BarSer*
  dLbls=CT_DLbls?)
CT_BarChart: EG_BarChartShared gapWidth=CT_GapAmount? overlap=CT_Overlap? serLines=CT_ChartLines*
  axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_Bar3DChart: EG_BarChartShared gapWidth=CT_GapAmount? gapDepth=CT_GapAmount? shape=CT_Shape?
  axId=CT_UnsignedInt{2,3} extLst=CT_ExtensionList?
EG_AreaChartShared: (grouping=CT_Grouping? varyColors=CT_Boolean? ser=CT_AreaSer* dLbls=CT_DLbls?
  dropLines=CT_ChartLines?)
CT_AreaChart: EG_AreaChartShared axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_Area3DChart: EG_AreaChartShared gapDepth=CT_GapAmount? axId=CT_UnsignedInt{2,3} extLst=CT_ExtensionList?
EG_PieChartShared: (varyColors=CT_Boolean? ser=CT_PieSer* dLbls=CT_DLbls?)
CT_PieChart: EG_PieChartShared firstSliceAng=CT_FirstSliceAng? extLst=CT_ExtensionList?
CT_Pie3DChart: EG_PieChartShared extLst=CT_ExtensionList?
CT_DoughnutChart: EG_PieChartShared firstSliceAng=CT_FirstSliceAng? holeSize=CT_HoleSize?
  extLst=CT_ExtensionList?
CT_OfPieType: ; val=ST_OfPieType
CT_OfPieChart: ofPieType=CT_OfPieType EG_PieChartShared gapWidth=CT_GapAmount? splitType=CT_SplitType?
  splitPos=CT_Double? custSplit=CT_CustSplit? secondPieSize=CT_SecondPieSize? serLines=CT_ChartLines*
  extLst=CT_ExtensionList?
CT_BubbleChart: varyColors=CT_Boolean? ser=CT_BubbleSer* dLbls=CT_DLbls? bubble3D=CT_Boolean?
  bubbleScale=CT_BubbleScale? showNegBubbles=CT_Boolean? sizeRepresents=CT_SizeRepresents?
  axId=CT_UnsignedInt{2,2} extLst=CT_ExtensionList?
CT_BandFmt: idx=CT_UnsignedInt spPr=a:CT_ShapeProperties?
CT_BandFmts: bandFmt=CT_BandFmt*
EG_SurfaceChartShared: (wireframe=CT_Boolean? ser=CT_SurfaceSer* bandFmts=CT_BandFmts?)
CT_SurfaceChart: EG_SurfaceChartShared axId=CT_UnsignedInt{2,3} extLst=CT_ExtensionList?
CT_Surface3DChart: EG_SurfaceChartShared axId=CT_UnsignedInt{3,3} extLst=CT_ExtensionList?
CT_AxPos: ; val=ST_AxPos!
CT_Crosses: ; val=ST_Crosses!
CT_CrossBetween: ; val=ST_CrossBetween!
CT_TickMark: ; val=ST_TickMark
CT_TickLblPos: ; val=ST_TickLblPos
CT_Skip: ; val=ST_Skip!
CT_TimeUnit: ; val=ST_TimeUnit
CT_AxisUnit: ; val=ST_AxisUnit!
CT_BuiltInUnit: ; val=ST_BuiltInUnit
CT_PictureFormat: ; val=ST_PictureFormat!
CT_PictureStackUnit: ; val=ST_PictureStackUnit!
CT_PictureOptions: applyToFront=CT_Boolean? applyToSides=CT_Boolean? applyToEnd=CT_Boolean?
  pictureFormat=CT_PictureFormat? pictureStackUnit=CT_PictureStackUnit?
CT_DispUnitsLbl: layout=CT_Layout? tx=CT_Tx? spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody?
CT_DispUnits: (custUnit=CT_Double | builtInUnit=CT_BuiltInUnit) dispUnitsLbl=CT_DispUnitsLbl?
  extLst=CT_ExtensionList?
CT_Orientation: ; val=ST_Orientation
CT_LogBase: ; val=ST_LogBase!
CT_Scaling: logBase=CT_LogBase? orientation=CT_Orientation? max=CT_Double? min=CT_Double?
  extLst=CT_ExtensionList?
CT_LblOffset: ; val=ST_LblOffset
EG_AxShared: (axId=CT_UnsignedInt scaling=CT_Scaling delete=CT_Boolean? axPos=CT_AxPos
  majorGridlines=CT_ChartLines? minorGridlines=CT_ChartLines? title=CT_Title? numFmt=CT_NumFmt?
  majorTickMark=CT_TickMark? minorTickMark=CT_TickMark? tickLblPos=CT_TickLblPos? spPr=a:CT_ShapeProperties?
  txPr=a:CT_TextBody? crossAx=CT_UnsignedInt (crosses=CT_Crosses | crossesAt=CT_Double)?)
CT_CatAx: EG_AxShared auto=CT_Boolean? lblAlgn=CT_LblAlgn? lblOffset=CT_LblOffset? tickLblSkip=CT_Skip?
  tickMarkSkip=CT_Skip? noMultiLvlLbl=CT_Boolean? extLst=CT_ExtensionList?
CT_DateAx: EG_AxShared auto=CT_Boolean? lblOffset=CT_LblOffset? baseTimeUnit=CT_TimeUnit?
  majorUnit=CT_AxisUnit? majorTimeUnit=CT_TimeUnit? minorUnit=CT_AxisUnit? minorTimeUnit=CT_TimeUnit?
  extLst=CT_ExtensionList?
CT_SerAx: EG_AxShared tickLblSkip=CT_Skip? tickMarkSkip=CT_Skip? extLst=CT_ExtensionList?
CT_ValAx: EG_AxShared crossBetween=CT_CrossBetween? majorUnit=CT_AxisUnit? minorUnit=CT_AxisUnit?
  dispUnits=CT_DispUnits? extLst=CT_ExtensionList?
CT_PlotArea: layout=CT_Layout? (areaChart=CT_AreaChart | area3DChart=CT_Area3DChart | lineChart=CT_LineChart
  | line3DChart=CT_Line3DChart | stockChart=CT_StockChart | radarChart=CT_RadarChart |
  scatterChart=CT_ScatterChart | pieChart=CT_PieChart | pie3DChart=CT_Pie3DChart |
  doughnutChart=CT_DoughnutChart | barChart=CT_BarChart | bar3DChart=CT_Bar3DChart |
  ofPieChart=CT_OfPieChart | surfaceChart=CT_SurfaceChart | surface3DChart=CT_Surface3DChart |
  bubbleChart=CT_BubbleChart)+ (valAx=CT_ValAx | catAx=CT_CatAx | dateAx=CT_DateAx | serAx=CT_SerAx)*
  dTable=CT_DTable? spPr=a:CT_ShapeProperties? extLst=CT_ExtensionList?
CT_PivotFmt: idx=CT_UnsignedInt spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody? marker=CT_Marker?
  dLbl=CT_DLbl? extLst=CT_ExtensionList?
CT_PivotFmts: pivotFmt=CT_PivotFmt*
CT_LegendPos: ; val=ST_LegendPos
EG_LegendEntryData: txPr=a:CT_TextBody?
CT_LegendEntry: idx=CT_UnsignedInt (delete=CT_Boolean | EG_LegendEntryData) extLst=CT_ExtensionList?
CT_Legend: legendPos=CT_LegendPos? legendEntry=CT_LegendEntry* layout=CT_Layout? overlay=CT_Boolean?
  spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody? extLst=CT_ExtensionList?
CT_DispBlanksAs: ; val=ST_DispBlanksAs
CT_Chart: title=CT_Title? autoTitleDeleted=CT_Boolean? pivotFmts=CT_PivotFmts? view3D=CT_View3D?
  floor=CT_Surface? sideWall=CT_Surface? backWall=CT_Surface? plotArea=CT_PlotArea legend=CT_Legend?
  plotVisOnly=CT_Boolean? dispBlanksAs=CT_DispBlanksAs? showDLblsOverMax=CT_Boolean?
  extLst=CT_ExtensionList? showDLblsOverMax=CT_Boolean?
CT_Style: ; val=ST_Style!
CT_PivotSource: name=s:ST_Xstring fmtId=CT_UnsignedInt extLst=CT_ExtensionList*
CT_Protection: chartObject=CT_Boolean? data=CT_Boolean? formatting=CT_Boolean? selection=CT_Boolean?
  userInterface=CT_Boolean?
CT_HeaderFooter: oddHeader=s:ST_Xstring? oddFooter=s:ST_Xstring? evenHeader=s:ST_Xstring?
  evenFooter=s:ST_Xstring? firstHeader=s:ST_Xstring? firstFooter=s:ST_Xstring? ; alignWithMargins=boolean
  differentOddEven=boolean differentFirst=boolean
CT_PageMargins: ; l=double! r=double! t=double! b=double! header=double! footer=double!
CT_ExternalData: autoUpdate=CT_Boolean? ; r:id=r:ST_RelationshipId!
CT_PageSetup: ; paperSize=unsignedInt paperHeight=s:ST_PositiveUniversalMeasure
  paperWidth=s:ST_PositiveUniversalMeasure firstPageNumber=unsignedInt orientation=ST_PageSetupOrientation
  blackAndWhite=boolean draft=boolean useFirstPageNumber=boolean horizontalDpi=int verticalDpi=int
  copies=unsignedInt
CT_PrintSettings: headerFooter=CT_HeaderFooter? pageMargins=CT_PageMargins? pageSetup=CT_PageSetup?
  legacyDrawingHF=CT_RelId?
CT_ChartSpace: date1904=CT_Boolean? lang=CT_TextLanguageID? roundedCorners=CT_Boolean? style=CT_Style?
  clrMapOvr=a:CT_ColorMapping? pivotSource=CT_PivotSource? protection=CT_Protection? chart=CT_Chart
  spPr=a:CT_ShapeProperties? txPr=a:CT_TextBody? externalData=CT_ExternalData?
  printSettings=CT_PrintSettings? userShapes=CT_RelId? extLst=CT_ExtensionList?
chartSpace = CT_ChartSpace
chart = CT_RelId
)rows";

} // namespace vellox::check
