// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kSharedValues[] = R"rows(
ST_Lang: string
ST_HexColorRGB: hexBinary 3..3
ST_Panose: hexBinary 10..10
ST_CalendarType: {gregorian gregorianUs gregorianMeFrench gregorianArabic hijri hebrew taiwan japan thai
  korea saka gregorianXlitEnglish gregorianXlitFrench none}
ST_AlgClass: {hash custom}
ST_CryptProv: {rsaAES rsaFull custom}
ST_AlgType: {typeAny custom}
ST_ColorType: string
ST_Guid: guid
ST_OnOff: boolean | ST_OnOff1
ST_OnOff1: {on off}
ST_String: string
ST_XmlName: NCName 1..255
ST_TrueFalse: {t f true false}
ST_TrueFalseBlank: {t f true false '' True False}
ST_UnsignedDecimalNumber: unsignedLong
ST_TwipsMeasure: ST_UnsignedDecimalNumber | ST_PositiveUniversalMeasure
ST_VerticalAlignRun: {baseline superscript subscript}
ST_Xstring: string
ST_XAlign: {left center right inside outside}
ST_YAlign: {inline top center bottom inside outside}
ST_ConformanceClass: {strict transitional}
ST_UniversalMeasure: measure
ST_PositiveUniversalMeasure: measure 0..
ST_Percentage: decimalPercent
ST_FixedPercentage: decimalPercent -100..100
ST_PositivePercentage: decimalPercent 0..
ST_PositiveFixedPercentage: decimalPercent 0..100
)rows";

} // namespace vellox::check
