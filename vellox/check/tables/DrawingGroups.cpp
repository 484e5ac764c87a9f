// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kDrawingGroups[] = R"rows(
EG_Media: (audioCd=CT_AudioCD | wavAudioFile=CT_EmbeddedWAVAudioFile | audioFile=CT_AudioFile |
  videoFile=CT_VideoFile | quickTimeFile=CT_QuickTimeFile)
EG_ColorTransform: (tint=CT_PositiveFixedPercentage | shade=CT_PositiveFixedPercentage |
  comp=CT_ComplementTransform | inv=CT_InverseTransform | gray=CT_GrayscaleTransform |
  alpha=CT_PositiveFixedPercentage | alphaOff=CT_FixedPercentage | alphaMod=CT_PositivePercentage |
  hue=CT_PositiveFixedAngle | hueOff=CT_Angle | hueMod=CT_PositivePercentage | sat=CT_Percentage |
  satOff=CT_Percentage | satMod=CT_Percentage | lum=CT_Percentage | lumOff=CT_Percentage |
  lumMod=CT_Percentage | red=CT_Percentage | redOff=CT_Percentage | redMod=CT_Percentage |
  green=CT_Percentage | greenOff=CT_Percentage | greenMod=CT_Percentage | blue=CT_Percentage |
  blueOff=CT_Percentage | blueMod=CT_Percentage | gamma=CT_GammaTransform |
  invGamma=CT_InverseGammaTransform)
EG_OfficeArtExtensionList: ext=CT_OfficeArtExtension*
EG_ColorChoice: (scrgbClr=CT_ScRgbColor | srgbClr=CT_SRgbColor | hslClr=CT_HslColor | sysClr=CT_SystemColor
  | schemeClr=CT_SchemeColor | prstClr=CT_PresetColor)
AG_Blob: ; r:embed=r:ST_RelationshipId r:link=r:ST_RelationshipId
AG_Locking: ; noGrp=boolean noSelect=boolean noRot=boolean noChangeAspect=boolean noMove=boolean
  noResize=boolean noEditPoints=boolean noAdjustHandles=boolean noChangeArrowheads=boolean
  noChangeShapeType=boolean
EG_Text3D: (sp3d=CT_Shape3D | flatTx=CT_FlatText)
EG_ShadeProperties: (lin=CT_LinearShadeProperties | path=CT_PathShadeProperties)
EG_FillModeProperties: (tile=CT_TileInfoProperties | stretch=CT_StretchInfoProperties)
EG_FillProperties: (noFill=CT_NoFillProperties | solidFill=CT_SolidColorFillProperties |
  gradFill=CT_GradientFillProperties | blipFill=CT_BlipFillProperties | pattFill=CT_PatternFillProperties |
  grpFill=CT_GroupFillProperties)
EG_Effect: (cont=CT_EffectContainer | effect=CT_EffectReference | alphaBiLevel=CT_AlphaBiLevelEffect |
  alphaCeiling=CT_AlphaCeilingEffect | alphaFloor=CT_AlphaFloorEffect | alphaInv=CT_AlphaInverseEffect |
  alphaMod=CT_AlphaModulateEffect | alphaModFix=CT_AlphaModulateFixedEffect |
  alphaOutset=CT_AlphaOutsetEffect | alphaRepl=CT_AlphaReplaceEffect | biLevel=CT_BiLevelEffect |
  blend=CT_BlendEffect | blur=CT_BlurEffect | clrChange=CT_ColorChangeEffect | clrRepl=CT_ColorReplaceEffect
  | duotone=CT_DuotoneEffect | fill=CT_FillEffect | fillOverlay=CT_FillOverlayEffect | glow=CT_GlowEffect |
  grayscl=CT_GrayscaleEffect | hsl=CT_HSLEffect | innerShdw=CT_InnerShadowEffect | lum=CT_LuminanceEffect |
  outerShdw=CT_OuterShadowEffect | prstShdw=CT_PresetShadowEffect | reflection=CT_ReflectionEffect |
  relOff=CT_RelativeOffsetEffect | softEdge=CT_SoftEdgesEffect | tint=CT_TintEffect |
  xfrm=CT_TransformEffect)
EG_EffectProperties: (effectLst=CT_EffectList | effectDag=CT_EffectContainer)
EG_Geometry: (custGeom=CT_CustomGeometry2D | prstGeom=CT_PresetGeometry2D)
EG_TextGeometry: (custGeom=CT_CustomGeometry2D | prstTxWarp=CT_PresetTextShape)
EG_LineFillProperties: (noFill=CT_NoFillProperties | solidFill=CT_SolidColorFillProperties |
  gradFill=CT_GradientFillProperties | pattFill=CT_PatternFillProperties)
EG_LineJoinProperties: (round=CT_LineJoinRound | bevel=CT_LineJoinBevel | miter=CT_LineJoinMiterProperties)
EG_LineDashProperties: (prstDash=CT_PresetLineDashProperties | custDash=CT_DashStopList)
EG_ThemeableFillStyle: (fill=CT_FillProperties | fillRef=CT_StyleMatrixReference)
EG_ThemeableEffectStyle: (effect=CT_EffectProperties | effectRef=CT_StyleMatrixReference)
EG_ThemeableFontStyles: (font=CT_FontCollection | fontRef=CT_FontReference)
EG_TextAutofit: (noAutofit=CT_TextNoAutofit | normAutofit=CT_TextNormalAutofit |
  spAutoFit=CT_TextShapeAutofit)
EG_TextBulletColor: (buClrTx=CT_TextBulletColorFollowText | buClr=CT_Color)
EG_TextBulletSize: (buSzTx=CT_TextBulletSizeFollowText | buSzPct=CT_TextBulletSizePercent |
  buSzPts=CT_TextBulletSizePoint)
EG_TextBulletTypeface: (buFontTx=CT_TextBulletTypefaceFollowText | buFont=CT_TextFont)
EG_TextBullet: (buNone=CT_TextNoBullet | buAutoNum=CT_TextAutonumberBullet | buChar=CT_TextCharBullet |
  buBlip=CT_TextBlipBullet)
EG_TextUnderlineLine: (uLnTx=CT_TextUnderlineLineFollowText | uLn=CT_LineProperties?)
EG_TextUnderlineFill: (uFillTx=CT_TextUnderlineFillFollowText | uFill=CT_TextUnderlineFillGroupWrapper)
EG_TextRun: (r=CT_RegularTextRun | br=CT_TextLineBreak | fld=CT_TextField)
)rows";

} // namespace vellox::check
