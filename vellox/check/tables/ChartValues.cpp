// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kChartValues[] = R"rows(
ST_LayoutTarget: {inner outer}
ST_LayoutMode: {edge factor}
ST_RotX: byte -90..90
ST_HPercent: ST_HPercentWithSymbol | ST_HPercentUShort
ST_HPercentWithSymbol: percent 5..500
ST_HPercentUShort: unsignedShort 5..500
ST_RotY: unsignedShort 0..360
ST_DepthPercent: ST_DepthPercentWithSymbol | ST_DepthPercentUShort
ST_DepthPercentWithSymbol: percent 20..2000
ST_DepthPercentUShort: unsignedShort 20..2000
ST_Perspective: unsignedByte 0..240
ST_Thickness: ST_ThicknessPercent | unsignedInt
ST_ThicknessPercent: percent 0..
ST_GapAmount: ST_GapAmountPercent | ST_GapAmountUShort
ST_GapAmountPercent: percent 0..500
ST_GapAmountUShort: unsignedShort 0..500
ST_Overlap: ST_OverlapPercent | ST_OverlapByte
ST_OverlapPercent: percent -100..100
ST_OverlapByte: byte -100..100
ST_BubbleScale: ST_BubbleScalePercent | ST_BubbleScaleUInt
ST_BubbleScalePercent: percent 0..300
ST_BubbleScaleUInt: unsignedInt 0..300
ST_SizeRepresents: {area w}
ST_FirstSliceAng: unsignedShort 0..360
ST_HoleSize: ST_HoleSizePercent | ST_HoleSizeUByte
ST_HoleSizePercent: percent 1..90
ST_HoleSizeUByte: unsignedByte 1..90
ST_SplitType: {auto cust percent pos val}
ST_SecondPieSize: ST_SecondPieSizePercent | ST_SecondPieSizeUShort
ST_SecondPieSizePercent: percent 5..200
ST_SecondPieSizeUShort: unsignedShort 5..200
ST_LblAlgn: {ctr l r}
ST_DLblPos: {bestFit b ctr inBase inEnd l outEnd r t}
ST_MarkerStyle: {circle dash diamond dot none picture plus square star triangle x auto}
ST_MarkerSize: unsignedByte 2..72
ST_TrendlineType: {exp linear log movingAvg poly power}
ST_Order: unsignedByte 2..6
ST_Period: unsignedInt 2..
ST_ErrDir: {x y}
ST_ErrBarType: {both minus plus}
ST_ErrValType: {cust fixedVal percentage stdDev stdErr}
ST_Grouping: {percentStacked standard stacked}
ST_ScatterStyle: {none line lineMarker marker smooth smoothMarker}
ST_RadarStyle: {standard marker filled}
ST_BarGrouping: {percentStacked clustered standard stacked}
ST_BarDir: {bar col}
ST_Shape: {cone coneToMax box cylinder pyramid pyramidToMax}
ST_OfPieType: {pie bar}
ST_AxPos: {b l r t}
ST_Crosses: {autoZero max min}
ST_CrossBetween: {between midCat}
ST_TickMark: {cross in none out}
ST_TickLblPos: {high low nextTo none}
ST_Skip: unsignedInt 1..
ST_TimeUnit: {days months years}
ST_AxisUnit: double 1..
ST_BuiltInUnit: {hundreds thousands tenThousands hundredThousands millions tenMillions hundredMillions
  billions trillions}
ST_PictureFormat: {stretch stack stackScale}
ST_PictureStackUnit: double 1..
ST_Orientation: {maxMin minMax}
ST_LogBase: double 2..1000
ST_LblOffset: ST_LblOffsetPercent | ST_LblOffsetUShort
ST_LblOffsetPercent: percent 0..1000
ST_LblOffsetUShort: unsignedShort 0..1000
ST_LegendPos: {b tr l r t}
ST_DispBlanksAs: {span gap zero}
ST_Style: unsignedByte 1..48
ST_PageSetupOrientation: {default portrait landscape}
ST_SignedOrUnsignedInt: int | unsignedInt
)rows";

} // namespace vellox::check
