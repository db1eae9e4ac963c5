#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsA01[] = {
    text("A0101", "姓    名").max(10),
    text("A0104", "性    别"),
    day("A0106", "出生日期"),
    text("A0103", "身份证号"),
    text("A0109", "籍    贯"),
    text("A0105", "民    族"),
    text("A0107", "党    派"),
    text("A0108", "文化程度"),
    text("A0110", "毕业院校"),
    month("A0111", "毕业时间"),
    text("A0113", "所学专业"),
    text("A0112", "学    位"),
    month("A0115", "参加工作时间"),
    text("A0118", "专业领域"),
    text("A0119", "从事专业"),
    text("A0120", "专业技术职称"),
    text("A0114", "工作单位"),
    text("A0117", "单位性质"),
    text("A0123", "职    务"),
    text("A0138", "职    级"),
    text("A0122", "职称级别"),
    text("A0124", "单位地址"),
    text("A0125", "邮政编码").digits(),
    text("A0116", "单位类别"),
    text("A0130", "主管部门"),
    text("A0121", "所在行业"),
    text("A0126", "单位电话").phone(),
    text("A0127", "家庭电话").phone(),
    text("A0128", "移动电话").phone(),
    text("A0129", "电子信箱"),
    number("A0131", "被批准为博导年份"),
    number("A0133", "获得突贡称号年份"),
    number("A0135", "获得优青称号年份"),
    number("A0134", "批准享受特贴年份"),
    number("A0132", "入选科技新星年份"),
};

constexpr FieldRow fieldsA02[] = {
    month("A0201", "起始年月"), month("A0202", "截止年月"), text("A0203", "就读院校（系）"),
    text("A0204", "专    业"),  text("A0205", "学    位"),
};

constexpr FieldRow fieldsA03[] = {
    month("A0301", "起始年月"), month("A0302", "截止年月"), text("A0303", "工作单位"),
    text("A0304", "职    务"),  text("A0305", "职    称"),
};

constexpr FieldRow fieldsA04[] = {
    month("A0401", "起始年月"),
    month("A0402", "截止年月"),
    text("A0403", "兼职、任职单位名称"),
    text("A0404", "职    务"),
};

constexpr FieldRow fieldsA05[] = {
    month("A0501", "起始年月"), month("A0502", "截止年月"), text("A0503", "访问（进修、培训）机构名称、地点"),
    text("A0505", "身    份"),  text("A0504", "有关内容"),
};

constexpr FieldRow fieldsA06[] = {
    text("A0603", "会议名称"), month("A0601", "时    间"), text("A0602", "会议主办单位"),
    text("A0604", "会议地点"), text("A0605", "论文题目"),
};

constexpr FieldRow fieldsA07[] = {
    text("A0701", "成果、课题、工作项目名称"),
    month("A0702", "起始年月"),
    month("A0703", "截止年月"),
    text("A0704", "任务来源"),
    text("A0705", "课题、工作项目状态"),
    text("A0706", "角    色"),
};

constexpr FieldRow fieldsA08[] = {
    text("A0801", "专著、论文、报告名称"),
    text("A0802", "出版社、刊物名称；报告应用单位"),
    month("A0803", "完成年月"),
    text("A0804", "排名").digits(),
};

constexpr FieldRow fieldsA09[] = {
    text("A0901", "项目名称"),        number("A0904", "获奖年份"), text("A0902", "奖励名称"),
    text("A0905", "排  名").digits(), text("A0903", "奖励等级"),
};

constexpr FieldRow fieldsA10[] = {
    longText("A1001", "创新点及主要业绩简述（限500字）"),
};

constexpr FieldRow fieldsA11[] = {
    text("A1102", "竞赛名称"),         month("A1101", "竞赛年月"), text("A1103", "竞赛级别"),
    text("A1104", "竞赛职业（工种）"), text("A1105", "竞赛成绩"),
};

constexpr FieldRow fieldsA12[] = {
    text("A1205", "职业资格"),  text("A1204", "从事职业"),  text("A1203", "工作单位"),
    month("A1202", "截止年月"), month("A1201", "起始年月"),
};

constexpr FieldRow fieldsG01[] = {
    text("A0101", "姓    名"),
    text("A0104", "性    别"),
    day("A0106", "出生日期"),
    text("A0103", "身份证号"),
    text("A0109", "籍    贯"),
    text("A0105", "民    族"),
    text("A0107", "党    派"),
    text("A0108", "文化程度"),
    text("A0110", "毕业院校"),
    month("A0111", "毕业时间"),
    text("A0113", "所学专业"),
    text("A0112", "学    位"),
    month("A0115", "参加工作日期"),
    text("A0139", "现从事职业（工  种）"),
    text("A0114", "工作单位"),
    text("A0117", "单位性质"),
    text("A0123", "职    务"),
    text("A0141", "本职业工作年限").decimal(),
    text("A0140", "职业资格"),
    text("A0143", "发证单位"),
    text("A0144", "证书编号"),
    number("A0142", "取证时间"),
    text("A0124", "单位地址"),
    text("A0125", "邮政编码").digits(),
    text("A0116", "单位类别"),
    text("A0130", "主管部门"),
    text("A0121", "所在行业"),
    text("A0126", "单位电话").phone(),
    text("A0127", "家庭电话").phone(),
    text("A0128", "移动电话").phone(),
    text("A0129", "电子信箱"),
    number("A0145", "获得中华技能大奖年份"),
    number("A0146", "获得全国技术能手年份"),
    number("A0147", "获得首都劳动奖章年份"),
    number("A0148", "获得市级劳动技术能手年份"),
    text("A0118", "专业领域"),
    text("A0138", "职务级别"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserA01",
     .widgetTable = "A01",
     .title = "人员基本信息",
     .fields = fieldsA01,
     .fill = FillTemplate::Person},
    {.className = "A1ctrlUserA02",
     .widgetTable = "A02",
     .title = "主要学习（从中专、大专或大学填起，包括国外学历）",
     .fields = fieldsA02,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserA03",
     .widgetTable = "A03",
     .title = "主要工作经历（包括国内外经历）",
     .fields = fieldsA03},
    {.className = "A1ctrlUserA04",
     .widgetTable = "A04",
     .title = "主要兼职（国内外学术团体任职、社会兼职情况）",
     .fields = fieldsA04,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserA05",
     .widgetTable = "A05",
     .title = "国内外访问、进修、培训经历",
     .fields = fieldsA05},
    {.className = "A1ctrlUserA06",
     .widgetTable = "A06",
     .title = "参加国内外重要学术会议情况（限填会上有论文宣读或收入论文集的会议）",
     .fields = fieldsA06,
     .fill = FillTemplate::Plain,
     .aliasedGridCatalogue = true},
    {.className = "A1ctrlUserA07",
     .widgetTable = "A07",
     .title = "申请人近期取得的专业成果，目前所承担的研究课题、工作项目及担任的角色",
     .fields = fieldsA07},
    {.className = "A1ctrlUserA08",
     .widgetTable = "A08",
     .title = "申请人出版专著、发表论文、撰写报告情况（选填有代表性的五部、篇）",
     .fields = fieldsA08,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserA09",
     .widgetTable = "A09",
     .title = "申请人取得获奖成果情况",
     .fields = fieldsA09,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserA10",
     .widgetTable = "A10",
     .title = "申请人在上述工作中的创新点及主要业绩简述",
     .fields = fieldsA10,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserA11",
     .widgetTable = "A11",
     .title = "参加国内外职业技能竞赛情况",
     .fields = fieldsA11,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserA12",
     .widgetTable = "A12",
     .title = "主要工作经历（包括国内外经历）",
     .fields = fieldsA12,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserG01",
     .widgetTable = "A01",
     .title = "人员基本信息",
     .fields = fieldsG01,
     .fill = FillTemplate::Person},
};

} // namespace

std::span<const PanelRow> personPanels() { return rows; }

} // namespace quillmere::catalogue
