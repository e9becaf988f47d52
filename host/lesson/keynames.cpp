// SPDX-License-Identifier: MIT
#include "lesson/keynames.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace lessonhost {

namespace {

struct KeyName
{
    enum Kind { Seen, Internal };

    const char *key;
    const char *plain;
    Kind kind = Seen;
};

// What several keys say for a teacher has one name. Keys that only an editor knows what to do with are its settings.
const KeyName keyWords[] = {
    // General.
    {"ID", TO_SAY("identifier"), KeyName::Internal},
    {"NetID", TO_SAY("identifier"), KeyName::Internal},
    {"Type", TO_SAY("kind of item"), KeyName::Internal},
    {"Delete", TO_SAY("setting of the editor"), KeyName::Internal},
    {"Visible", TO_SAY("whether it is shown")},
    {"LockIn", TO_SAY("lock")},
    {"locked", TO_SAY("lock")},
    {"InfiniteClone", TO_SAY("copies without end")},
    {"uclone", TO_SAY("copies without end")},
    {"IgnoreEraser", TO_SAY("mark of the eraser"), KeyName::Internal},
    {"InteractiveType", TO_SAY("link")},
    {"InteractiveValue", TO_SAY("link")},
    {"link_type", TO_SAY("link")},
    {"link_value", TO_SAY("link")},
    {"BoundingBox", TO_SAY("place and size")},
    {"Bound", TO_SAY("place and size")},
    {"IgnoredBoundingBox", TO_SAY("place and size in the file"), KeyName::Internal},
    {"Matrix", TO_SAY("turn and stretch")},
    {"TransformMatrix", TO_SAY("turn and stretch")},
    {"WPFMATRIX", TO_SAY("turn and stretch")},
    {"SlideMatrix", TO_SAY("how the slide was fitted to the page"), KeyName::Internal},
    {"SlideSourceRect", TO_SAY("how the slide was fitted to the page"), KeyName::Internal},
    {"Angle", TO_SAY("turn")},
    {"HorizonFlip", TO_SAY("mirroring")},
    {"VerticalFlip", TO_SAY("mirroring")},
    {"Control", TO_SAY("points of the shape")},
    {"controlpoints", TO_SAY("points of the shape")},
    {"IgnoredControl", TO_SAY("points of the shape in the file"), KeyName::Internal},
    {"Children", TO_SAY("items in it")},
    {"GroupSonItems", TO_SAY("items in it")},
    {"KeptXml", TO_SAY("item as it came"), KeyName::Internal},
    {"CoverLayer", TO_SAY("cover")},
    {"CoverLayerType", TO_SAY("cover")},
    {"SupportCoverlayer", TO_SAY("setting of the editor"), KeyName::Internal},
    {"Discipline_xCreate", TO_SAY("where it was made"), KeyName::Internal},
    {"Discipline_yCreate", TO_SAY("where it was made"), KeyName::Internal},
    {"CenterPtX", TO_SAY("where it was made"), KeyName::Internal},
    {"CenterPtY", TO_SAY("where it was made"), KeyName::Internal},
    {"ArtInner_CenterPointX", TO_SAY("where it was made"), KeyName::Internal},
    {"ArtInner_CenterPointY", TO_SAY("where it was made"), KeyName::Internal},
    {"animations", TO_SAY("animation")},
    {"objAnimationData", TO_SAY("animation")},
    {"attachments", TO_SAY("files of the item")},
    {"resource", TO_SAY("file")},
    {"MultiMediaFile", TO_SAY("file")},
    {"href", TO_SAY("file")},
    {"xlink:href", TO_SAY("file")},
    {"document", TO_SAY("picture or document")},
    {"AttachFile", TO_SAY("picture of the background")},
    {"path", TO_SAY("file")},
    {"name", TO_SAY("name")},
    {"width", TO_SAY("width")},
    {"height", TO_SAY("height")},
    {"x", TO_SAY("place")},
    {"y", TO_SAY("place")},
    {"cx", TO_SAY("place")},
    {"cy", TO_SAY("place")},
    {"r", TO_SAY("radius")},
    {"rx", TO_SAY("radius")},
    {"ry", TO_SAY("radius")},
    {"points", TO_SAY("points")},
    {"rect", TO_SAY("place and size")},
    {"fill", TO_SAY("colour of the fill")},
    {"stroke", TO_SAY("colour of the line")},
    {"stroke-width", TO_SAY("width of the line")},
    {"stroke-opacity", TO_SAY("how the colour shines through")},
    {"stroke-dasharray", TO_SAY("dashes of the line")},
    {"stroke-lineshape-start", TO_SAY("ends of the line")},
    {"stroke-lineshape-end", TO_SAY("ends of the line")},
    {"rgb", TO_SAY("colour")},
    {"alp", TO_SAY("how the colour shines through")},
    {"fill-opacity", TO_SAY("how the colour shines through")},
    // Presentation and slide.
    {"Author", TO_SAY("author"), KeyName::Internal},
    {"Date", TO_SAY("date"), KeyName::Internal},
    {"Date_modified", TO_SAY("date"), KeyName::Internal},
    {"Version", TO_SAY("version of the file"), KeyName::Internal},
    {"Version_app", TO_SAY("version of the editor"), KeyName::Internal},
    {"Title", TO_SAY("title")},
    {"Range", TO_SAY("size of the page")},
    {"UserSystem", TO_SAY("setting of the editor"), KeyName::Internal},
    {"color", TO_SAY("colour")},
    {"BackColor", TO_SAY("colour of the background")},
    {"TextureLineType", TO_SAY("paper of the background")},
    {"background-posture", TO_SAY("how the background lies")},
    {"SlideTagsInfo", TO_SAY("setting of the editor"), KeyName::Internal},
    {"effect_type", TO_SAY("change to the next slide")},
    {"effect_time", TO_SAY("change to the next slide")},
    {"effect_direction", TO_SAY("change to the next slide")},
    {"EffectType", TO_SAY("change to the next slide")},
    {"effect", TO_SAY("change to the next slide")},
    {"activity", TO_SAY("game")},
    {"ActivityInfo", TO_SAY("game")},
    {"templet", TO_SAY("pictures of the game")},
    {"Slides", TO_SAY("slides")},
    {"Items", TO_SAY("items")},
    {"Resources", TO_SAY("files")},
    {"description", TO_SAY("description")},
    // Ink.
    {"XY", TO_SAY("points")},
    {"vertex", TO_SAY("points")},
    {"PointBrushWid", TO_SAY("width along the stroke")},
    {"path_width", TO_SAY("width along the stroke")},
    {"Time", TO_SAY("when each point was drawn"), KeyName::Internal},
    {"Weight", TO_SAY("pressure of the pen"), KeyName::Internal},
    {"Opacity", TO_SAY("how the colour shines through")},
    {"Cap", TO_SAY("ends of the line")},
    {"DashStyle", TO_SAY("dashes of the line")},
    {"stroke_type", TO_SAY("dashes of the line")},
    {"DrawTexture", TO_SAY("picture of the stroke")},
    {"Stamp", TO_SAY("picture of the stamp")},
    {"PixelDeleteInfos", TO_SAY("what was rubbed out")},
    {"Formula_Strokes", TO_SAY("how the formula was written"), KeyName::Internal},
    // Texts.
    {"Text", TO_SAY("text")},
    {"TextContent", TO_SAY("text")},
    {"TextHtml", TO_SAY("text")},
    {"content", TO_SAY("text")},
    {"TextPhonetic", TO_SAY("text")},
    {"EditBkColor", TO_SAY("colour behind the text")},
    {"SHOWBACKCOLOR", TO_SAY("colour behind the text")},
    {"Transparency", TO_SAY("how the colour shines through")},
    {"AudioPath", TO_SAY("sound")},
    {"InitialScale", TO_SAY("scale at the beginning"), KeyName::Internal},
    {"TextVOffset", TO_SAY("height of the text")},
    {"defaultTextAlignment", TO_SAY("how the text is aligned")},
    {"defaultTextColor", TO_SAY("colour of the text")},
    {"defaultTextFamily", TO_SAY("font")},
    {"defaultTextSize", TO_SAY("size of the letters")},
    {"defaultFrontFontFormat", TO_SAY("font of the front")},
    {"defaultBackFontFormat", TO_SAY("font of the back")},
    {"frontContent", TO_SAY("text of the front")},
    {"front", TO_SAY("front")},
    {"back", TO_SAY("back")},
    {"FontSize", TO_SAY("size of the letters")},
    {"TextWidth", TO_SAY("width of the text")},
    {"ArtObj_Font", TO_SAY("font")},
    {"ArtObj_HZFont", TO_SAY("font")},
    {"ArtObj_HZcolor", TO_SAY("colour of the character")},
    {"ArtObj_Text", TO_SAY("text")},
    {"ArtObj_RememberText", TO_SAY("text")},
    {"RememberText", TO_SAY("text")},
    {"Label", TO_SAY("text")},
    {"Lable text", TO_SAY("text")},
    {"Text color", TO_SAY("colour of the text")},
    {"Font color", TO_SAY("colour of the text")},
    // Media.
    {"auto", TO_SAY("whether it plays by itself")},
    {"loop", TO_SAY("whether it plays again")},
    {"mute", TO_SAY("whether it is silent")},
    {"volume", TO_SAY("loudness")},
    {"play_time", TO_SAY("length of the sound")},
    {"duration", TO_SAY("length")},
    {"show_name", TO_SAY("whether its name is shown")},
    {"clipHeight", TO_SAY("what is cut off")},
    {"clipWidth", TO_SAY("what is cut off")},
    {"clipStartX", TO_SAY("what is cut off")},
    {"clipStartY", TO_SAY("what is cut off")},
    {"clipShape", TO_SAY("what is cut off")},
    {"clipData", TO_SAY("what is cut off")},
    {"rotate", TO_SAY("turn")},
    {"transparent", TO_SAY("how it shines through")},
    {"outlinetype", TO_SAY("edge")},
    {"format", TO_SAY("kind of file"), KeyName::Internal},
    {"extern", TO_SAY("setting of the editor"), KeyName::Internal},
    {"filter", TO_SAY("setting of the editor"), KeyName::Internal},
    {"simulation", TO_SAY("setting of the editor"), KeyName::Internal},
    {"span", TO_SAY("setting of the editor"), KeyName::Internal},
    {"subject", TO_SAY("setting of the editor"), KeyName::Internal},
    // Subjects.
    {"ArtObj_Width", TO_SAY("width of the line")},
    {"LineWidth", TO_SAY("width of the line")},
    {"ArtObj_Color", TO_SAY("colour")},
    {"DisciplineObj_Color", TO_SAY("colour")},
    {"ArtObj_FillColor", TO_SAY("colour of the fill")},
    {"Fill_Color", TO_SAY("colour of the fill")},
    {"FillColor", TO_SAY("colour of the fill")},
    {"Fill color", TO_SAY("colour of the fill")},
    {"FreeItem_FillControlColor", TO_SAY("colour of the fill")},
    {"ArtVectObj_RegionColor", TO_SAY("colour of the fill")},
    {"ArtVectObj_FrameColor", TO_SAY("colour of the line")},
    {"ArtObj_LineColor", TO_SAY("colour of the line")},
    {"LineColor", TO_SAY("colour of the line")},
    {"FreeItem_LineColor", TO_SAY("colour of the line")},
    {"Color of edge", TO_SAY("colour of the line")},
    {"ArtObj_Fill", TO_SAY("whether it is filled")},
    {"IsFill", TO_SAY("whether it is filled")},
    {"Be fill", TO_SAY("whether it is filled")},
    {"Be filled", TO_SAY("whether it is filled")},
    {"Cylinder filled with color", TO_SAY("whether it is filled")},
    {"FillType", TO_SAY("kind of fill")},
    {"FillTypeF", TO_SAY("kind of fill")},
    {"FileType", TO_SAY("kind of fill")},
    {"ArtObj_Mode", TO_SAY("form of the line")},
    {"Drawing mode", TO_SAY("form of the line")},
    {"LineMode", TO_SAY("form of the line")},
    {"ArtObject_LineMode", TO_SAY("form of the line")},
    {"FreeItem_LineStyle", TO_SAY("form of the line")},
    {"ArtObj_Style", TO_SAY("form of the line")},
    {"ArtObj_Arrow", TO_SAY("arrowheads")},
    {"ArtObj_ArrowType", TO_SAY("arrowheads")},
    {"ArrowNum", TO_SAY("arrowheads")},
    {"ArtObj_Type", TO_SAY("kind")},
    {"[Type]", TO_SAY("kind")},
    {"KindType", TO_SAY("kind")},
    {"Benzene", TO_SAY("kind")},
    {"ArtObj_Ln", TO_SAY("number of corners")},
    {"Obj_Ln", TO_SAY("number of corners")},
    {"ArtObj_Center", TO_SAY("whether its centre is shown")},
    {"Display center", TO_SAY("whether its centre is shown")},
    {"ArtObj_Display", TO_SAY("whether its measure is shown")},
    {"ArtObj_DisplayAngle", TO_SAY("whether its measure is shown")},
    {"ArtObj_DisplayCircle", TO_SAY("whether its measure is shown")},
    {"ArtObj_Displaykabian", TO_SAY("whether its measure is shown")},
    {"Display angle", TO_SAY("whether its measure is shown")},
    {"Display kabian", TO_SAY("whether its measure is shown")},
    {"Display radius", TO_SAY("whether its measure is shown")},
    {"DisplayCircle", TO_SAY("whether its measure is shown")},
    {"Show Angle", TO_SAY("whether its measure is shown")},
    {"Show diatance", TO_SAY("whether its measure is shown")},
    {"ArtObj_Drawcd", TO_SAY("auxiliary lines")},
    {"ArtObj_Drawcz", TO_SAY("auxiliary lines")},
    {"ArtObj_Drawp", TO_SAY("auxiliary lines")},
    {"ArtObj_Drawpx", TO_SAY("auxiliary lines")},
    {"ArtObj_Drawzd", TO_SAY("auxiliary lines")},
    {"Draw midpoint", TO_SAY("auxiliary lines")},
    {"ArtObj_Unit", TO_SAY("unit of measures")},
    {"Discipline_Unit", TO_SAY("unit of measures")},
    {"Distance unit", TO_SAY("unit of measures")},
    {"Unit", TO_SAY("unit of measures")},
    {"ArtObj_Prec", TO_SAY("digits of measures")},
    {"Precision value", TO_SAY("digits of measures")},
    {"ArtObj_Mk", TO_SAY("digits of measures")},
    {"Number of decimal places retained", TO_SAY("digits of measures")},
    {"ArtObj_Mh", TO_SAY("measures of the shape")},
    {"ArtObj_Mw", TO_SAY("measures of the shape")},
    {"ArtObj_Mr", TO_SAY("measures of the shape")},
    {"ArtObj_Ms", TO_SAY("measures of the shape")},
    {"ArtObj_Mx", TO_SAY("measures of the shape")},
    {"m_h", TO_SAY("measures of the shape")},
    {"m_r", TO_SAY("measures of the shape")},
    {"m_x", TO_SAY("measures of the shape")},
    {"XScale", TO_SAY("measures of the shape")},
    {"ArtObj_Height", TO_SAY("measures of the shape")},
    {"ArtObj_Length", TO_SAY("measures of the shape")},
    {"ArtObj_Thick", TO_SAY("measures of the shape")},
    {"ArtObj_Range", TO_SAY("measures of the shape")},
    {"Discipline_Mh", TO_SAY("measures of the shape")},
    {"Discipline_Width", TO_SAY("measures of the shape")},
    {"Discipline_Grid", TO_SAY("scale")},
    {"Length", TO_SAY("length")},
    {"ArtObj_Mp", TO_SAY("scale")},
    {"Scale", TO_SAY("scale")},
    {"Scale starting point", TO_SAY("scale")},
    {"Scale value of each grid", TO_SAY("scale")},
    {"ArtObj_Point", TO_SAY("points of the shape")},
    {"ArtObj_Pointx", TO_SAY("points of the shape")},
    {"ArtObj_Pointy", TO_SAY("points of the shape")},
    {"Pointx", TO_SAY("points of the shape")},
    {"Pointy", TO_SAY("points of the shape")},
    {"ArtObj_Pointh", TO_SAY("points of the shape")},
    {"ArtObj_Pointhx", TO_SAY("points of the shape")},
    {"ArtObj_Pointhy", TO_SAY("points of the shape")},
    {"ArtObj_Pointw", TO_SAY("points of the shape")},
    {"ArtObj_Pointwx", TO_SAY("points of the shape")},
    {"ArtObj_Pointwy", TO_SAY("points of the shape")},
    {"ArtObj_Pointxx", TO_SAY("points of the shape")},
    {"ArtObj_Pointxy", TO_SAY("points of the shape")},
    {"ArtObj_Position", TO_SAY("points of the shape")},
    {"ArtObj_InterPointx", TO_SAY("points of the shape")},
    {"ArtObj_InterPointy", TO_SAY("points of the shape")},
    {"ArtObj_InterpointNumber", TO_SAY("points of the shape")},
    {"Discipline_xControl", TO_SAY("points of the shape")},
    {"Discipline_yControl", TO_SAY("points of the shape")},
    {"FreeItem_PtnPosVec", TO_SAY("points of the shape")},
    {"FreeItem_PtnConinueVec", TO_SAY("points of the shape")},
    {"FreeItem_PtnElemLenVec", TO_SAY("points of the shape")},
    {"VectorControl", TO_SAY("points of the shape")},
    {"VectorPathType", TO_SAY("kind of path"), KeyName::Internal},
    {"manager", TO_SAY("drawing of the shape")},
    {"ArtVectObj_Manager", TO_SAY("drawing of the shape")},
    {"XYValue", TO_SAY("points")},
    {"ArtObj_StringPoint", TO_SAY("name of the point")},
    {"StartAngle", TO_SAY("angles of the arc")},
    {"SweepAngle", TO_SAY("angles of the arc")},
    {"RotateAngle", TO_SAY("turn")},
    {"Translate_X", TO_SAY("place")},
    {"Translate_Y", TO_SAY("place")},
    // Coordinates.
    {"ArtObj_Fx", TO_SAY("function")},
    {"ArtObj_FuncVector", TO_SAY("function")},
    {"ArtObj_FuncColorVector", TO_SAY("colour of the function")},
    {"ArtObj_HideFunc", TO_SAY("whether the function is shown")},
    {"ArtObj_Hide", TO_SAY("whether the axes are shown")},
    {"ArtObj_Du", TO_SAY("setting of the axes")},
    {"ArtObj_MathStrech", TO_SAY("setting of the axes")},
    {"ArtObj_MaxT", TO_SAY("range of the curve")},
    {"ArtObj_MinT", TO_SAY("range of the curve")},
    {"ArtObj_ShowOldUnit", TO_SAY("unit of the axes")},
    {"ArtObj_ShowUnit", TO_SAY("unit of the axes")},
    {"ArtObj_ShowRad", TO_SAY("unit of the axes")},
    // Physics and chemistry.
    {"ArtObj_Cap", TO_SAY("lid")},
    {"With lampshade", TO_SAY("lid")},
    {"ArtObj_Direct", TO_SAY("direction")},
    {"Current direction", TO_SAY("direction")},
    {"Magnetic field direction", TO_SAY("direction")},
    {"Opening direction", TO_SAY("direction")},
    {"Show direction or not", TO_SAY("direction")},
    {"ArtObj_DisplayFire", TO_SAY("flame")},
    {"ArtObj_Fire", TO_SAY("flame")},
    {"Show flame", TO_SAY("flame")},
    {"With Fire", TO_SAY("flame")},
    {"ArtObj_DisplayLight", TO_SAY("whether it is lit")},
    {"Light is on", TO_SAY("whether it is lit")},
    {"Show hightlight", TO_SAY("whether it is lit")},
    {"ArtObj_DisplayLiquid", TO_SAY("liquid")},
    {"Filled with liquid", TO_SAY("liquid")},
    {"With alcohol inside", TO_SAY("liquid")},
    {"Show liquid", TO_SAY("liquid")},
    {"Show the underlayer liquid", TO_SAY("liquid")},
    {"Show upper liquid", TO_SAY("liquid")},
    {"Show solid reactant", TO_SAY("solid in it")},
    {"ArtObj_LiquidColor", TO_SAY("colour of the liquid")},
    {"Alohol color", TO_SAY("colour of the liquid")},
    {"Liquid color", TO_SAY("colour of the liquid")},
    {"Color of liquid", TO_SAY("colour of the liquid")},
    {"Color of underlayer liquid", TO_SAY("colour of the liquid")},
    {"Color of upperlayer liquid", TO_SAY("colour of the liquid")},
    {"Color of solid reactant", TO_SAY("colour of the solid")},
    {"Color of pulley", TO_SAY("colour")},
    {"Color of scale", TO_SAY("colour of the scale")},
    {"Scale line color", TO_SAY("colour of the scale")},
    {"Color of wire", TO_SAY("colour")},
    {"Color when light is on", TO_SAY("colour of the light")},
    {"Bubble Color", TO_SAY("colour")},
    {"Flame core color", TO_SAY("colour of the flame")},
    {"Inner flame color", TO_SAY("colour of the flame")},
    {"Outer flame color", TO_SAY("colour of the flame")},
    {"N pole color", TO_SAY("colour of the poles")},
    {"S pole color", TO_SAY("colour of the poles")},
    {"ArtObj_DisplayX", TO_SAY("parts of it")},
    {"With the hoop", TO_SAY("parts of it")},
    {"ArtObj_Nog", TO_SAY("parts of it")},
    {"With bracket", TO_SAY("parts of it")},
    {"ArtObj_Hook", TO_SAY("parts of it")},
    {"Hook", TO_SAY("parts of it")},
    {"ArtObj_Layer", TO_SAY("shells of the atom")},
    {"ArtObj_Power", TO_SAY("number of forces")},
    {"Number of force groups", TO_SAY("number of forces")},
    {"ArtObj_Prop", TO_SAY("sign of the charge")},
    {"Positron-electron", TO_SAY("sign of the charge")},
    {"ArtObj_Sound", TO_SAY("sound")},
    {"Electric bell", TO_SAY("sound")},
    {"ArtObj_Speed", TO_SAY("speed")},
    {"ArtObj_State", TO_SAY("place of the bracket")},
    {"Bracket location", TO_SAY("place of the bracket")},
    {"ArtObj_Switch", TO_SAY("whether the switch is closed")},
    {"Switch is closed", TO_SAY("whether the switch is closed")},
    {"Switch is on or off", TO_SAY("whether the switch is closed")},
    {"Switch status", TO_SAY("whether the switch is closed")},
    {"Close", TO_SAY("whether the switch is closed")},
    {"Formula", TO_SAY("formula")},
    {"mml", TO_SAY("formula")},
    // Languages.
    {"ArtObj_DispHanzi", TO_SAY("whether the character is shown")},
    {"ArtObj_English", TO_SAY("word")},
    {"ArtObj_WriteDanci", TO_SAY("word")},
    {"EnglishWord", TO_SAY("word")},
    {"English word", TO_SAY("word")},
    {"ArtObj_HZ", TO_SAY("character")},
    {"ArtObj_Hanzi", TO_SAY("character")},
    {"ChineseWord", TO_SAY("character")},
    {"Chinese word", TO_SAY("character")},
    {"current_text", TO_SAY("character")},
    {"ArtObj_Pinyin", TO_SAY("pinyin")},
    {"current_pinyin", TO_SAY("pinyin")},
    {"original_alphabet", TO_SAY("pinyin")},
    {"DispGrid", TO_SAY("squares")},
    {"current_background_type", TO_SAY("squares")},
    {"notaion_type", TO_SAY("lines for writing")},
    {"notaion_visible", TO_SAY("lines for writing")},
    {"brick_width", TO_SAY("width of a square")},
    {"WordAtLeft", TO_SAY("where the word stands")},
    {"ArtObj_DanciPos", TO_SAY("where the word stands")},
    {"At left", TO_SAY("where the word stands")},
    {"WordHide", TO_SAY("whether the word is hidden")},
    {"Hide word", TO_SAY("whether the word is hidden")},
    {"show_right", TO_SAY("setting of the editor")},
    // Tools, games, worksheets.
    {"BackgroundAlpha", TO_SAY("how the cover shines through")},
    {"CanvasSize", TO_SAY("size of the page")},
    {"CardList", TO_SAY("cards")},
    {"Listdata", TO_SAY("list of the game")},
    {"ConnectionIndex", TO_SAY("connections")},
    {"ConnectionList", TO_SAY("connections")},
    {"FicationList", TO_SAY("things to sort")},
    {"EditList", TO_SAY("things to sort")},
    {"Editdata", TO_SAY("things to sort")},
    {"IdList", TO_SAY("things to sort")},
    {"Iddata", TO_SAY("things to sort")},
    {"Rectsparent", TO_SAY("shape of the light")},
    {"ShapeType", TO_SAY("shape of the light")},
    {"SpotCenter", TO_SAY("place of the light")},
    {"SpotRadius", TO_SAY("size of the light")},
    {"picture", TO_SAY("picture")},
    {"GapFillingContent", TO_SAY("text of the gap")},
    {"hole", TO_SAY("gap")},
    {"animal", TO_SAY("figure of the game")},
    {"offset", TO_SAY("place of the text")},
    {"hot", TO_SAY("place of the text")},
    {"editable", TO_SAY("whether it can be changed")},
    {"dyitemtype", TO_SAY("kind of worksheet"), KeyName::Internal},
    {"condition", TO_SAY("question of the game")},
    {"symbol", TO_SAY("sign")},
    {"font_align", TO_SAY("how the text is aligned")},
    // Mind maps and questions.
    {"mindMapData", TO_SAY("branches of the mind map")},
    {"mapItemInfo", TO_SAY("branches of the mind map")},
    {"node", TO_SAY("branches of the mind map")},
    {"R_Content_svg", TO_SAY("text of the question")},
    {"R_Answer_svg", TO_SAY("answer")},
    {"question", TO_SAY("text of the question")},
    {"answer", TO_SAY("answer")},
    {"answers", TO_SAY("answer")},
    {"difficulty", TO_SAY("setting of the editor")},
    {"page_state", TO_SAY("page that is open"), KeyName::Internal},
    {"page_scale", TO_SAY("size of the question")},
    {"answer_height", TO_SAY("size of the question")},
    {"answer_width", TO_SAY("size of the question")},
    {"content_height", TO_SAY("size of the question")},
    {"content_width", TO_SAY("size of the question")},
    {"json", TO_SAY("item as it came"), KeyName::Internal},
    {"InitBound", TO_SAY("place and size")},
    {"material", TO_SAY("pieces of the game")},
    {"font_color", TO_SAY("colour of the text")},
    {"font_family", TO_SAY("font")},
    {"font_size", TO_SAY("size of the letters")},
};

// What holds a value and doesn't tell which.
constexpr const char *bareNames[] = {"value", "x", "y", "points", "type", "name", "text", "path", "id", "a", "r", "g", "b"};

constexpr int longestKey = 40;

// Without digits and capitals.
QString folded(QString key)
{
    key.remove(QLatin1Char('\n'));
    const auto end = std::remove_if(key.begin(), key.end(), [](QChar c) { return c.isDigit(); });
    key.truncate(int(end - key.begin()));
    return key.trimmed().toLower();
}

const KeyName *rowOf(const QString &key)
{
    static const QHash<QString, const KeyName *> rows = [] {
        QHash<QString, const KeyName *> result;
        for (const KeyName &name : keyWords) {
            result.insert(folded(QLatin1String(name.key)), &name);
        }
        return result;
    }();
    return rows.value(folded(key));
}

bool isBare(const QString &name)
{
    return std::any_of(std::begin(bareNames), std::end(bareNames), [&name](const char *bare) {
        return name.compare(QLatin1String(bare), Qt::CaseInsensitive) == 0;
    });
}

// "[Fill color][2]" behind a tag is the label of a row and its number, "[2]" a number alone.
QStringList namesOfStep(const QString &step)
{
    const QString tag = step.section(QLatin1Char('['), 0, 0);
    const QString label = step.section(QLatin1Char('['), 1, 1).section(QLatin1Char(']'), 0, 0);
    if (std::all_of(label.cbegin(), label.cend(), [](QChar letter) { return letter.isDigit(); })) {
        return {tag};
    }
    return {QLatin1Char('[') + label + QLatin1Char(']'), label, tag};
}

// What may tell the value at a place, the nearest to it first.
QStringList namesAt(const QString &place)
{
    if (!place.contains(QLatin1Char('@')) && !place.contains(QLatin1Char('/'))) {
        return {place.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('['), 0, 0)};
    }
    const int at = place.lastIndexOf(QLatin1Char('@'));
    QStringList found;
    if (at >= 0) {
        found.append(place.mid(at + 1));
    }
    const QStringList steps = place.left(at < 0 ? place.size() : at).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (auto step = steps.crbegin(); step != steps.crend(); ++step) {
        found += namesOfStep(*step);
    }
    std::stable_partition(found.begin(), found.end(), [](const QString &name) { return !isBare(name); });
    return found;
}

const KeyName *rowAt(const QString &place)
{
    const QStringList candidates = namesAt(place);
    for (const QString &candidate : candidates) {
        if (const KeyName *row = rowOf(candidate)) {
            return row;
        }
    }
    return nullptr;
}

} // namespace

Sentence plainKeyName(const QString &key)
{
    const KeyName *row = rowOf(key);
    return row ? say(row->plain) : Sentence();
}

Sentence plainPlaceName(const QString &place)
{
    if (const KeyName *row = rowAt(place)) {
        return say(row->plain);
    }
    const QString own = namesAt(place).value(0);
    return say("\"%1\"").arg(own.size() <= longestKey ? own : QString(own.left(longestKey) + QLatin1String("...")));
}

bool isInternalPlace(const QString &place)
{
    const KeyName *row = rowAt(place);
    return row && row->kind == KeyName::Internal;
}

} // namespace lessonhost
