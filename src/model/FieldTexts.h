// Text ids of field labels on the property panels, in the catalogues' range 60000 to 60099; kinds of cards 60200 on.
#pragma once

namespace xrpt::text {

inline constexpr int kX = 60000;
inline constexpr int kY = 60001;
inline constexpr int kWidth = 60002;
inline constexpr int kHeight = 60003;
inline constexpr int kColor = 60004;
inline constexpr int kBackColor = 60005;
inline constexpr int kField = 60006;
inline constexpr int kText = 60007;
inline constexpr int kFontFace = 60008;
inline constexpr int kFontStyle = 60009;
inline constexpr int kFontSize = 60010;
inline constexpr int kFontColor = 60011;
inline constexpr int kOrientation = 60012;
inline constexpr int kStyle = 60013;
inline constexpr int kHorizontalAlign = 60014;
inline constexpr int kVerticalAlign = 60015;
inline constexpr int kBehavior = 60016;
inline constexpr int kDirection = 60017;
inline constexpr int kScrollAmount = 60018;
inline constexpr int kScrollDelay = 60019;
inline constexpr int kPattern = 60020;
inline constexpr int kSampleValue = 60021;
inline constexpr int kExpression = 60022;
inline constexpr int kIntegers = 60023;
inline constexpr int kDecimals = 60024;
inline constexpr int kLeftPadding = 60025;
inline constexpr int kRightPadding = 60026;
inline constexpr int kThousandSeparator = 60027;
inline constexpr int kVariableDefault = 60028;
inline constexpr int kAspectRatio = 60029;
inline constexpr int kRealSize = 60030;
inline constexpr int kImageId = 60031;
inline constexpr int kImagePath = 60032;
inline constexpr int kPageName = 60033;
inline constexpr int kRounded = 60034;
inline constexpr int kGridX = 60035;
inline constexpr int kGridY = 60036;
inline constexpr int kSurround = 60037;

inline constexpr int kLabelCard = 60200;
inline constexpr int kDateCard = 60201;
inline constexpr int kFormuleCard = 60202;
inline constexpr int kImageCard = 60203;
inline constexpr int kDynamicImageCard = 60204;
inline constexpr int kConditionedCard = 60205;
inline constexpr int kForceValuesCard = 60206;
inline constexpr int kReportGraphCard = 60207;
inline constexpr int kAnalogBarCard = 60208;
inline constexpr int kPrimitiveCard = 60209;
inline constexpr int kButtonCard = 60210;

}  // namespace xrpt::text
