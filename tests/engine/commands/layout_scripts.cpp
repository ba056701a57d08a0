// LAYOUT, MODEL, MVIEW, VPLAYER and PAGESETUP.

#include "engine/commands/scripts.h"

namespace {

constexpr char16_t kSheet[] =
    u"LINE|0,0|100,50||LAYOUT|s|Layout1|PAGESETUP|p|400x300|m|10|10|10|10|";
constexpr char16_t kView[] =
    u"LINE|0,0|100,50||LAYOUT|s|Layout1|PAGESETUP|p|400x300|m|10|10|10|10||MVIEW|0,0|200,100";

constexpr Script kLayouts[] = {
    {"New", u"LAYOUT|n|Sheet",
     u"*Model;Layout1 420x297 margins 7.5,20,7.5,20;Sheet 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"NewByEnter", u"LAYOUT|n|",
     u"*Model;Layout1 420x297 margins 7.5,20,7.5,20;Layout2 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"BadNames", u"LAYOUT|n|a/b|model|Sheet",
     u"*Model;Layout1 420x297 margins 7.5,20,7.5,20;Sheet 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"Copy", u"LAYOUT|c|nothing|Layout1|Sheet",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5;Sheet 400x300 "
     u"margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5",
     kView, describeLayouts},
    {"Delete", u"LAYOUT|d|Layout1", u"*Model;Sheet 420x297 margins 7.5,20,7.5,20",
     u"LAYOUT|n|Sheet", describeLayouts},
    {"Rename", u"LAYOUT|r|Layout1|Sheet", u"*Model;Sheet 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"Set", u"-LAYOUT|s|Layout1", u"Model;*Layout1 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"SetByEnter", u"LAYOUT||Layout1", u"Model;*Layout1 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"List", u"LAYOUT|?", u"*Model;Layout1 420x297 margins 7.5,20,7.5,20", nullptr,
     describeLayouts},
    {"Back", u"MODEL", u"*Model;Layout1 400x300 margins 10,10,10,10", kSheet, describeLayouts},

    {"Corners", u"MVIEW|10,10|200,150",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 10,10 to 200,150 shows 50,25 h77.3684", kSheet,
     describeLayouts},
    {"Fit", u"MVIEW|f",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 380,280 shows 50,25 h77.3684", kSheet,
     describeLayouts},
    {"Off", u"MVIEW|off|l|",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5 off", kView,
     describeLayouts},
    {"On", u"MVIEW|on|l|",
     u"Model;*Layout1 420x297 margins 7.5,20,7.5,20: 0,0 to 200,100 shows 50,25 h52.5",
     u"LINE|0,0|100,50||LAYOUT|s|Layout1|MVIEW|0,0|200,100|MVIEW|off|l|", describeLayouts},
    {"Lock", u"MVIEW|l|l||",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5 locked", kView,
     describeLayouts},
    {"LockYes", u"MVIEW|l|l||y",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5 locked", kView,
     describeLayouts},
    {"LockNo", u"MVIEW|l|l||n",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5", kView,
     describeLayouts},
    {"Scale", u"MVIEW|s|l||0|2",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h50", kView,
     describeLayouts},
    {"Window", u"MVIEW|w|l||10,10|10,10|60,20",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 35,15 h25", kView,
     describeLayouts},
    {"NoView", u"MVIEW|off|",
     u"Model;*Layout1 400x300 margins 10,10,10,10: 0,0 to 200,100 shows 50,25 h52.5", kView,
     describeLayouts},

    {"Freeze", u"VPLAYER|f|Walls,Roof|l|||",
     u"Model;*Layout1 420x297 margins 7.5,20,7.5,20: 0,0 to 200,100 shows 0,0 h100 without Walls "
     u"without Roof",
     u"LAYER|n|Walls,Roof||LAYOUT|s|Layout1|MVIEW|0,0|200,100", describeLayouts},
    {"Thaw", u"VPLAYER|?|l||t|Walls|l|||",
     u"Model;*Layout1 420x297 margins 7.5,20,7.5,20: 0,0 to 200,100 shows 0,0 h100 without Roof",
     u"LAYER|n|Walls,Roof||LAYOUT|s|Layout1|MVIEW|0,0|200,100|VPLAYER|f|Walls,Roof|l||",
     describeLayouts},

    {"Paper", u"PAGESETUP|p|a3|p|", u"Model;*Layout1 297x420 margins 10,10,10,10", kSheet,
     describeLayouts},
    {"Landscape", u"PAGESETUP|p|A9|a3|l|", u"Model;*Layout1 420x297 margins 10,10,10,10", kSheet,
     describeLayouts},
    {"Size", u"PAGESETUP|p|500x|500x300|", u"Model;*Layout1 500x300 margins 10,10,10,10", kSheet,
     describeLayouts},
    {"Margins", u"PAGESETUP|m|1|-1|2|3||", u"Model;*Layout1 400x300 margins 1,2,3,10", kSheet,
     describeLayouts},
    {"Scale", u"PAGESETUP|s|1|0|50|", u"Model;*Layout1 400x300 margins 10,10,10,10 scale 1:50",
     kSheet, describeLayouts},
    {"Fit", u"PAGESETUP|s|f|", u"Model;*Layout1 400x300 margins 10,10,10,10 fitted", kSheet,
     describeLayouts},
    {"Extents", u"PAGESETUP|a|e|", u"Model;*Layout1 400x300 margins 10,10,10,10 extents", kSheet,
     describeLayouts},
    {"AllOfTheLayout", u"PAGESETUP|a|e|a|l|", u"Model;*Layout1 400x300 margins 10,10,10,10", kSheet,
     describeLayouts},
    {"Window", u"PAGESETUP|a|w|30,5|30,9|10,20|",
     u"Model;*Layout1 400x300 margins 10,10,10,10 window 10,5 to 30,20", kSheet, describeLayouts},
    {"Table", u"PAGESETUP|t|mono.ctb|", u"Model;*Layout1 400x300 margins 10,10,10,10 mono.ctb",
     kSheet, describeLayouts},
};

} // namespace

std::span<const Script> layoutScripts() { return kLayouts; }
