// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kDrawingValues[] = R"rows(
ST_StyleMatrixColumnIndex: unsignedInt
ST_FontCollectionIndex: {major minor none}
ST_ColorSchemeIndex: {dk1 lt1 dk2 lt2 accent1 accent2 accent3 accent4 accent5 accent6 hlink folHlink}
ST_Coordinate: ST_CoordinateUnqualified | s:ST_UniversalMeasure
ST_CoordinateUnqualified: long -27273042329600..27273042316900
ST_Coordinate32: ST_Coordinate32Unqualified | s:ST_UniversalMeasure
ST_Coordinate32Unqualified: int
ST_PositiveCoordinate: long 0..27273042316900
ST_PositiveCoordinate32: ST_Coordinate32Unqualified 0..
ST_Angle: int
ST_FixedAngle: ST_Angle -5399999..5399999
ST_PositiveFixedAngle: ST_Angle 0..21599999
ST_Percentage: ST_PercentageDecimal | s:ST_Percentage
ST_PercentageDecimal: int
ST_PositivePercentage: ST_PositivePercentageDecimal | s:ST_PositivePercentage
ST_PositivePercentageDecimal: ST_PercentageDecimal 0..
ST_FixedPercentage: ST_FixedPercentageDecimal | s:ST_FixedPercentage
ST_FixedPercentageDecimal: ST_PercentageDecimal -100000..100000
ST_PositiveFixedPercentage: ST_PositiveFixedPercentageDecimal | s:ST_PositiveFixedPercentage
ST_PositiveFixedPercentageDecimal: ST_PercentageDecimal 0..100000
ST_SystemColorVal: {scrollBar background activeCaption inactiveCaption menu window windowFrame menuText
  windowText captionText activeBorder inactiveBorder appWorkspace highlight highlightText btnFace btnShadow
  grayText btnText inactiveCaptionText btnHighlight 3dDkShadow 3dLight infoText infoBk hotLight
  gradientActiveCaption gradientInactiveCaption menuHighlight menuBar}
ST_SchemeColorVal: {bg1 tx1 bg2 tx2 accent1 accent2 accent3 accent4 accent5 accent6 hlink folHlink phClr dk1
  lt1 dk2 lt2}
ST_PresetColorVal: {aliceBlue antiqueWhite aqua aquamarine azure beige bisque black blanchedAlmond blue
  blueViolet brown burlyWood cadetBlue chartreuse chocolate coral cornflowerBlue cornsilk crimson cyan
  darkBlue darkCyan darkGoldenrod darkGray darkGrey darkGreen darkKhaki darkMagenta darkOliveGreen
  darkOrange darkOrchid darkRed darkSalmon darkSeaGreen darkSlateBlue darkSlateGray darkSlateGrey
  darkTurquoise darkViolet dkBlue dkCyan dkGoldenrod dkGray dkGrey dkGreen dkKhaki dkMagenta dkOliveGreen
  dkOrange dkOrchid dkRed dkSalmon dkSeaGreen dkSlateBlue dkSlateGray dkSlateGrey dkTurquoise dkViolet
  deepPink deepSkyBlue dimGray dimGrey dodgerBlue firebrick floralWhite forestGreen fuchsia gainsboro
  ghostWhite gold goldenrod gray grey green greenYellow honeydew hotPink indianRed indigo ivory khaki
  lavender lavenderBlush lawnGreen lemonChiffon lightBlue lightCoral lightCyan lightGoldenrodYellow
  lightGray lightGrey lightGreen lightPink lightSalmon lightSeaGreen lightSkyBlue lightSlateGray
  lightSlateGrey lightSteelBlue lightYellow ltBlue ltCoral ltCyan ltGoldenrodYellow ltGray ltGrey ltGreen
  ltPink ltSalmon ltSeaGreen ltSkyBlue ltSlateGray ltSlateGrey ltSteelBlue ltYellow lime limeGreen linen
  magenta maroon medAquamarine medBlue medOrchid medPurple medSeaGreen medSlateBlue medSpringGreen
  medTurquoise medVioletRed mediumAquamarine mediumBlue mediumOrchid mediumPurple mediumSeaGreen
  mediumSlateBlue mediumSpringGreen mediumTurquoise mediumVioletRed midnightBlue mintCream mistyRose
  moccasin navajoWhite navy oldLace olive oliveDrab orange orangeRed orchid paleGoldenrod paleGreen
  paleTurquoise paleVioletRed papayaWhip peachPuff peru pink plum powderBlue purple red rosyBrown royalBlue
  saddleBrown salmon sandyBrown seaGreen seaShell sienna silver skyBlue slateBlue slateGray slateGrey snow
  springGreen steelBlue tan teal thistle tomato turquoise violet wheat white whiteSmoke yellow yellowGreen}
ST_RectAlignment: {tl t tr l ctr r bl b br}
ST_BlackWhiteMode: {clr auto gray ltGray invGray grayWhite blackGray blackWhite black white hidden}
ST_DrawingElementId: unsignedInt
ST_ChartBuildStep: {category ptInCategory series ptInSeries allPts gridLegend}
ST_DgmBuildStep: {sp bg}
ST_AnimationBuildType: {allAtOnce}
ST_AnimationDgmOnlyBuildType: {one lvlOne lvlAtOnce}
ST_AnimationDgmBuildType: ST_AnimationBuildType | ST_AnimationDgmOnlyBuildType
ST_AnimationChartOnlyBuildType: {series category seriesEl categoryEl}
ST_AnimationChartBuildType: ST_AnimationBuildType | ST_AnimationChartOnlyBuildType
ST_PresetCameraType: {legacyObliqueTopLeft legacyObliqueTop legacyObliqueTopRight legacyObliqueLeft
  legacyObliqueFront legacyObliqueRight legacyObliqueBottomLeft legacyObliqueBottom legacyObliqueBottomRight
  legacyPerspectiveTopLeft legacyPerspectiveTop legacyPerspectiveTopRight legacyPerspectiveLeft
  legacyPerspectiveFront legacyPerspectiveRight legacyPerspectiveBottomLeft legacyPerspectiveBottom
  legacyPerspectiveBottomRight orthographicFront isometricTopUp isometricTopDown isometricBottomUp
  isometricBottomDown isometricLeftUp isometricLeftDown isometricRightUp isometricRightDown
  isometricOffAxis1Left isometricOffAxis1Right isometricOffAxis1Top isometricOffAxis2Left
  isometricOffAxis2Right isometricOffAxis2Top isometricOffAxis3Left isometricOffAxis3Right
  isometricOffAxis3Bottom isometricOffAxis4Left isometricOffAxis4Right isometricOffAxis4Bottom
  obliqueTopLeft obliqueTop obliqueTopRight obliqueLeft obliqueRight obliqueBottomLeft obliqueBottom
  obliqueBottomRight perspectiveFront perspectiveLeft perspectiveRight perspectiveAbove perspectiveBelow
  perspectiveAboveLeftFacing perspectiveAboveRightFacing perspectiveContrastingLeftFacing
  perspectiveContrastingRightFacing perspectiveHeroicLeftFacing perspectiveHeroicRightFacing
  perspectiveHeroicExtremeLeftFacing perspectiveHeroicExtremeRightFacing perspectiveRelaxed
  perspectiveRelaxedModerately}
ST_FOVAngle: ST_Angle 0..10800000
ST_LightRigDirection: {tl t tr l r bl b br}
ST_LightRigType: {legacyFlat1 legacyFlat2 legacyFlat3 legacyFlat4 legacyNormal1 legacyNormal2 legacyNormal3
  legacyNormal4 legacyHarsh1 legacyHarsh2 legacyHarsh3 legacyHarsh4 threePt balanced soft harsh flood
  contrasting morning sunrise sunset chilly freezing flat twoPt glow brightRoom}
ST_BevelPresetType: {relaxedInset circle slope cross angle softRound convex coolSlant divot riblet hardEdge
  artDeco}
ST_PresetMaterialType: {legacyMatte legacyPlastic legacyMetal legacyWireframe matte plastic metal warmMatte
  translucentPowder powder dkEdge softEdge clear flat softmetal}
ST_PresetShadowVal: {shdw1 shdw2 shdw3 shdw4 shdw5 shdw6 shdw7 shdw8 shdw9 shdw10 shdw11 shdw12 shdw13
  shdw14 shdw15 shdw16 shdw17 shdw18 shdw19 shdw20}
ST_PathShadeType: {shape circle rect}
ST_TileFlipMode: {none x y xy}
ST_BlipCompression: {email screen print hqprint none}
ST_PresetPatternVal: {pct5 pct10 pct20 pct25 pct30 pct40 pct50 pct60 pct70 pct75 pct80 pct90 horz vert
  ltHorz ltVert dkHorz dkVert narHorz narVert dashHorz dashVert cross dnDiag upDiag ltDnDiag ltUpDiag
  dkDnDiag dkUpDiag wdDnDiag wdUpDiag dashDnDiag dashUpDiag diagCross smCheck lgCheck smGrid lgGrid dotGrid
  smConfetti lgConfetti horzBrick diagBrick solidDmnd openDmnd dotDmnd plaid sphere weave divot shingle wave
  trellis zigZag}
ST_BlendMode: {over mult screen darken lighten}
ST_EffectContainerType: {sib tree}
ST_ShapeType: {line lineInv triangle rtTriangle rect diamond parallelogram trapezoid nonIsoscelesTrapezoid
  pentagon hexagon heptagon octagon decagon dodecagon star4 star5 star6 star7 star8 star10 star12 star16
  star24 star32 roundRect round1Rect round2SameRect round2DiagRect snipRoundRect snip1Rect snip2SameRect
  snip2DiagRect plaque ellipse teardrop homePlate chevron pieWedge pie blockArc donut noSmoking rightArrow
  leftArrow upArrow downArrow stripedRightArrow notchedRightArrow bentUpArrow leftRightArrow upDownArrow
  leftUpArrow leftRightUpArrow quadArrow leftArrowCallout rightArrowCallout upArrowCallout downArrowCallout
  leftRightArrowCallout upDownArrowCallout quadArrowCallout bentArrow uturnArrow circularArrow
  leftCircularArrow leftRightCircularArrow curvedRightArrow curvedLeftArrow curvedUpArrow curvedDownArrow
  swooshArrow cube can lightningBolt heart sun moon smileyFace irregularSeal1 irregularSeal2 foldedCorner
  bevel frame halfFrame corner diagStripe chord arc leftBracket rightBracket leftBrace rightBrace
  bracketPair bracePair straightConnector1 bentConnector2 bentConnector3 bentConnector4 bentConnector5
  curvedConnector2 curvedConnector3 curvedConnector4 curvedConnector5 callout1 callout2 callout3
  accentCallout1 accentCallout2 accentCallout3 borderCallout1 borderCallout2 borderCallout3
  accentBorderCallout1 accentBorderCallout2 accentBorderCallout3 wedgeRectCallout wedgeRoundRectCallout
  wedgeEllipseCallout cloudCallout cloud ribbon ribbon2 ellipseRibbon ellipseRibbon2 leftRightRibbon
  verticalScroll horizontalScroll wave doubleWave plus flowChartProcess flowChartDecision
  flowChartInputOutput flowChartPredefinedProcess flowChartInternalStorage flowChartDocument
  flowChartMultidocument flowChartTerminator flowChartPreparation flowChartManualInput
  flowChartManualOperation flowChartConnector flowChartPunchedCard flowChartPunchedTape
  flowChartSummingJunction flowChartOr flowChartCollate flowChartSort flowChartExtract flowChartMerge
  flowChartOfflineStorage flowChartOnlineStorage flowChartMagneticTape flowChartMagneticDisk
  flowChartMagneticDrum flowChartDisplay flowChartDelay flowChartAlternateProcess flowChartOffpageConnector
  actionButtonBlank actionButtonHome actionButtonHelp actionButtonInformation actionButtonForwardNext
  actionButtonBackPrevious actionButtonEnd actionButtonBeginning actionButtonReturn actionButtonDocument
  actionButtonSound actionButtonMovie gear6 gear9 funnel mathPlus mathMinus mathMultiply mathDivide
  mathEqual mathNotEqual cornerTabs squareTabs plaqueTabs chartX chartStar chartPlus}
ST_TextShapeType: {textNoShape textPlain textStop textTriangle textTriangleInverted textChevron
  textChevronInverted textRingInside textRingOutside textArchUp textArchDown textCircle textButton
  textArchUpPour textArchDownPour textCirclePour textButtonPour textCurveUp textCurveDown textCanUp
  textCanDown textWave1 textWave2 textDoubleWave1 textWave4 textInflate textDeflate textInflateBottom
  textDeflateBottom textInflateTop textDeflateTop textDeflateInflate textDeflateInflateDeflate textFadeRight
  textFadeLeft textFadeUp textFadeDown textSlantUp textSlantDown textCascadeUp textCascadeDown}
ST_GeomGuideName: token
ST_GeomGuideFormula: string
ST_AdjCoordinate: ST_Coordinate | ST_GeomGuideName
ST_AdjAngle: ST_Angle | ST_GeomGuideName
ST_PathFillMode: {none norm lighten lightenLess darken darkenLess}
ST_LineEndType: {none triangle stealth diamond oval arrow}
ST_LineEndWidth: {sm med lg}
ST_LineEndLength: {sm med lg}
ST_PresetLineDashVal: {solid dot dash lgDash dashDot lgDashDot lgDashDotDot sysDash sysDot sysDashDot
  sysDashDotDot}
ST_LineCap: {rnd sq flat}
ST_LineWidth: ST_Coordinate32Unqualified 0..20116800
ST_PenAlignment: {ctr in}
ST_CompoundLine: {sng dbl thickThin thinThick tri}
ST_ShapeID: token
ST_OnOffStyleType: {on off def}
ST_TextAnchoringType: {t ctr b just dist}
ST_TextVertOverflowType: {overflow ellipsis clip}
ST_TextHorzOverflowType: {overflow clip}
ST_TextVerticalType: {horz vert vert270 wordArtVert eaVert mongolianVert wordArtVertRtl}
ST_TextWrappingType: {none square}
ST_TextColumnCount: int 1..16
ST_TextFontScalePercentOrPercentString: ST_TextFontScalePercent | s:ST_Percentage
ST_TextFontScalePercent: ST_PercentageDecimal 1000..100000
ST_TextBulletStartAtNum: int 1..32767
ST_TextAutonumberScheme: {alphaLcParenBoth alphaUcParenBoth alphaLcParenR alphaUcParenR alphaLcPeriod
  alphaUcPeriod arabicParenBoth arabicParenR arabicPeriod arabicPlain romanLcParenBoth romanUcParenBoth
  romanLcParenR romanUcParenR romanLcPeriod romanUcPeriod circleNumDbPlain circleNumWdBlackPlain
  circleNumWdWhitePlain arabicDbPeriod arabicDbPlain ea1ChsPeriod ea1ChsPlain ea1ChtPeriod ea1ChtPlain
  ea1JpnChsDbPeriod ea1JpnKorPlain ea1JpnKorPeriod arabic1Minus arabic2Minus hebrew2Minus thaiAlphaPeriod
  thaiAlphaParenR thaiAlphaParenBoth thaiNumPeriod thaiNumParenR thaiNumParenBoth hindiAlphaPeriod
  hindiNumPeriod hindiNumParenR hindiAlpha1Period}
ST_TextBulletSize: ST_TextBulletSizePercent | ST_TextBulletSizeDecimal
ST_TextBulletSizePercent: percent 25..400 | int 25000..400000
ST_TextBulletSizeDecimal: ST_PercentageDecimal 25000..400000
ST_TextPoint: ST_TextPointUnqualified | s:ST_UniversalMeasure
ST_TextPointUnqualified: int -400000..400000
ST_TextNonNegativePoint: int 0..400000
ST_TextFontSize: int 100..400000
ST_TextTypeface: string
ST_PitchFamily: byte
ST_TextUnderlineType: {none words sng dbl heavy dotted dottedHeavy dash dashHeavy dashLong dashLongHeavy
  dotDash dotDashHeavy dotDotDash dotDotDashHeavy wavy wavyHeavy wavyDbl}
ST_TextStrikeType: {noStrike sngStrike dblStrike}
ST_TextCapsType: {none small all}
ST_TextSpacingPoint: int 0..158400
ST_TextSpacingPercentOrPercentString: ST_TextSpacingPercent | s:ST_Percentage
ST_TextSpacingPercent: ST_PercentageDecimal 0..13200000
ST_TextMargin: ST_Coordinate32Unqualified 0..51206400
ST_TextIndent: ST_Coordinate32Unqualified -51206400..51206400
ST_TextTabAlignType: {l ctr r dec}
ST_TextAlignType: {l ctr r just justLow dist thaiDist}
ST_TextFontAlignType: {auto t ctr base b}
ST_TextIndentLevelType: int 0..8
)rows";

} // namespace vellox::check
