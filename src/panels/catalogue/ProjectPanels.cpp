#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsP01[] = {
    text("P0109", "项目名称"),
    month("P0106", "项目起始年月"),
    month("P0107", "项目截止年月"),
    text("P0112", "申请项目分组"),
    text("P0103", "总费用").decimal().in("万元", "Label2"),
};

constexpr FieldRow fieldsP02[] = {
    month("P0201", "计划起始年月"),
    month("P0202", "计划截止年月"),
    longText("P0203", "主要工作内容"),
    longText("P0204", "考核指标或成果"),
};

constexpr FieldRow fieldsP02_DG[] = {
    month("P0107", "项目计划截止年月"),
    month("P0106", "项目计划起始年月"),
};

constexpr FieldRow fieldsP03[] = {
    text("P0102", "申请资助金额").decimal().in("万元", "Label2"),
    text("P0104", "项目资金缺口解决办法"),
    text("P0103", "总费用").in("万元", "Label3"),
};

constexpr FieldRow fieldsP04[] = {
    text("P0402", "申报或立项的部门"),  text("P0403", "资助名称"),
    number("P0401", "申报年度"),        text("P0404", "资助经费数额").decimal().in("万元"),
    check("P0405", "是否获得经费资助"),
};

constexpr FieldRow fieldsP05[] = {
    text("P0502", "匹配（拟匹配）资金的单位名称"),
    text("P0503", "匹配（拟）金额").decimal().in("万元"),
    check("P0501", "是否已经匹配"),
};

constexpr FieldRow fieldsP06[] = {
    text("P0602", "主管领导"),
    longText("P0601", "所在单位党委（党组）意见"),
};

constexpr FieldRow fieldsP07[] = {
    text("P0701", "姓  名"), text("P0702", "身份证号码"), text("P0703", "工作单位"),
    text("P0704", "职  务"), text("P0705", "专业职称"),   text("P0706", "分工内容"),
};

constexpr FieldRow fieldsP08[] = {
    longText("P0801", "项目最终成果提供形式、评估方式和主要鉴定（验收）考核指标"),
};

constexpr FieldRow fieldsP10[] = {
    text("P1002", "去往单位"),
    text("P1003", "国  别"),
    text("P1004", "项目类别"),
    text("P1005", "外语水平证书"),
    longText("P1008", "去往单位、导师（或主要合作者）的简要介绍（限200字）"),
    longText("P1009", "项目的工作重点，主要目标、意义等综述（限500字）"),
    longText("P1010", "申请人已开展项目相关工作情况"),
    check("P1006", "是否签署协议"),
    check("P1007", "是否有邀请函"),
};

constexpr FieldRow fieldsP11[] = {
    text("P1101", "参加会议（活动）名称"),
    text("P1102", "主办单位"),
    text("P1107", "往返路线"),
    text("P1104", "承办单位"),
    text("P1103", "邀请人"),
    text("P1105", "会议地址"),
    text("P1106", "举办国别"),
    text("P1109", "宣读论文题目"),
    longText("P1110", "拟参加会议（活动）的主要内容"),
    longText("P1111", "申请人参加会议（活动）的目的，交流的主要内容及从事相关工作的情况"),
    longText("P1112", "申请人宣读论文的简要介绍"),
    check("P1108", "是否有宣读论文邀请证明"),
};

constexpr FieldRow fieldsP12[] = {
    longText("P1203", "申请资助项目中的主要创新工作、拟采用的研究方法、技术路线"),
};

constexpr FieldRow fieldsP13[] = {
    text("P1301", "拟出版专著名称"),
    text("P1303", "出版社或发行机构名称"),
    month("P1304", "预计截稿年月"),
    month("P1305", "预计出版年月"),
    longText("P1306", "撰写专著的主要工作过程或计划"),
    longText("P1307", "拟出版专著目录"),
    longText("P1308", "专著主要内容（限500字）"),
    check("P1302", "否与出版社或发行机构签约"),
};

constexpr FieldRow fieldsP14[] = {
    text("P1402", "去往单位"),
    text("P1403", "国  别"),
    text("P1405", "外语水平证书"),
    check("P1406", "是否签署协议"),
    longText("P1408", "去往单位、合作者，或竞赛项目的简要介绍（限200字）"),
    check("P1407", "是否有邀请函"),
};

constexpr FieldRow fieldsP15[] = {
    text("P1504", "解决的主要问题"),
    longText("P1505", "申请资助项目中的主要创新工作、拟采用的研究方法、技术路线"),
};

constexpr FieldRow fieldsP16[] = {
    text("P1605", "专业方向"),
    longText("P1606", "申请资助项目中的主要创新工作、拟采用的研究方法"),
};

constexpr FieldRow fieldsP17[] = {
    text("P1702", "主管领导"),
    longText("P1701", "局级单位党委（党组）意见"),
};

constexpr FieldRow fieldsP18[] = {
    longText(
        "P1801",
        "申请人提出、确定申请资助项目的依据；概要介绍与该项目有关专业在国内外的发展现状及趋势（限500字）"),
    longText("P1803", "现有与完成申请资助项目有关的工作条件及需要改善内容（包括：资料、设备、实验材料等）"),
    longText("P1802", "申请资助项目的主要工作内容、目的、意义，应用前景，对专业领域（科学研究\\工程技术\\公共"
                      "管理\\企业经营管理）发展的影响及经济效益、社会效益分析预测（限1000字）"),
};

constexpr FieldRow fieldsPP01[] = {
    number("P0125", "资助年度"),
    text("P0126", "资助金额").decimal().in("万元"),
    month("P0128", "项目计划起始时间"),
    month("P0129", "项目计划截止时间"),
    month("P0122", "预计结题时间"),
    text("P0127", "配套金额").decimal().in("万元"),
    text("P0112", "申请项目分组"),
    text("P0109", "项目名称"),
    text("P0103", "项目预算总费用").decimal().in("万元"),
    text("P0102", "申请资助金额").decimal().in("万元"),
    month("P0107", "项目截止年月"),
    month("P0106", "项目起始年月"),
    text("P0120", "项目编号"),
};

constexpr FieldRow fieldsPP01A[] = {
    number("P0125", "资助年度"),
    text("P0126", "资助金额").decimal().in("万元"),
    month("P0128", "项目计划起始时间"),
    month("P0129", "项目计划截止时间"),
    month("P0122", "预计结题时间"),
    text("P0127", "配套金额").decimal().in("万元"),
    month("P0135", "预计出国时间"),
    text("P0102", "申请资助金额").decimal().in("万元"),
    text("P0103", "项目预算总费用").decimal().in("万元"),
    text("P0109", "项目名称"),
    text("P0112", "申请项目分组"),
    month("P0107", "项目截止年月"),
    month("P0106", "项目起始年月"),
    text("P0120", "项目编号"),
};

constexpr FieldRow fieldsJP01[] = {
    text("P0130", "项目结题形式"),
    text("P0131", "鉴定验收单位"),
    month("P0124", "结题时间"),
    text("P0127", "配套金额").in("万元"),
    text("P0126", "资助金额").in("万元"),
    month("P0122", "预计结题时间"),
    text("P0102", "申请资助金额").decimal().in("万元"),
    text("P0103", "总费用").decimal().in("万元"),
    text("P0104", "项目资金缺口解决办法"),
    text("P0109", "项目名称"),
    month("P0128", "项目计划起始时间"),
    text("P0112", "申请项目分组"),
    month("P0107", "项目截止年月"),
    month("P0106", "项目起始年月"),
    number("P0125", "资助年度"),
    month("P0129", "项目计划截止时间"),
    text("P0120", "项目编号"),
    number("P0108", "上报年度"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserP01", .widgetTable = "P01", .title = "项目基本信息", .fields = fieldsP01},
    {.className = "A1ctrlUserP02", .widgetTable = "P02", .title = "项目进度计划", .fields = fieldsP02},
    {.className = "A1ctrlUserP02_DG",
     .widgetTable = "P01",
     .title = "申请资助项目工作进度计划",
     .fields = fieldsP02_DG,
     .fill = FillTemplate::Plain,
     .hasGrid = false},
    {.className = "A1ctrlUserP03",
     .widgetTable = "P01",
     .title = "申请资助经费预算",
     .fields = fieldsP03,
     .fill = FillTemplate::Plain,
     .hasGrid = false},
    {.className = "A1ctrlUserP04",
     .widgetTable = "P04",
     .title = "申请资助项目在其他部门申报或立项情况",
     .fields = fieldsP04},
    {.className = "A1ctrlUserP05",
     .widgetTable = "P05",
     .title = "申请人所在单位或有关部门对申请资助项目匹配（拟匹配）资金情况",
     .fields = fieldsP05,
     .fill = FillTemplate::LengthChecked},
    {.className = "A1ctrlUserP06",
     .widgetTable = "P06",
     .title = "申请人所在单位党委（党组）意见",
     .fields = fieldsP06},
    {.className = "A1ctrlUserP07",
     .widgetTable = "P07",
     .title = "申请资助项目的成员及分工",
     .fields = fieldsP07,
     .fill = FillTemplate::Plain,
     .gridFollowsSet = false},
    {.className = "A1ctrlUserP08",
     .widgetTable = "P08",
     .title = "项目最终成果提供形式、评估方式和主要鉴定（验收）考核指标",
     .fields = fieldsP08,
     .caretToFront = false},
    {.className = "A1ctrlUserP10",
     .widgetTable = "P10",
     .title = "AB类项目情况",
     .fields = fieldsP10,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP11",
     .widgetTable = "P11",
     .title = "C类项目情况",
     .fields = fieldsP11,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP12",
     .widgetTable = "P12",
     .title = "申请资助项目中的主要创新工作、拟采用的研究方法、技术路线",
     .fields = fieldsP12,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP13",
     .widgetTable = "P13",
     .title = "E类项目情况",
     .fields = fieldsP13,
     .fill = FillTemplate::Plain},
    {.className = "A1ctrlUserP14",
     .widgetTable = "P14",
     .title = "参加技能学习（培训、研修）或技能竞赛",
     .fields = fieldsP14,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP15",
     .widgetTable = "P15",
     .title = "开展技术、技法研究",
     .fields = fieldsP15,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP16",
     .widgetTable = "P16",
     .title = "组建工作室",
     .fields = fieldsP16,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP17",
     .widgetTable = "P17",
     .title = "归口推荐局级单位党委（党组）意见",
     .fields = fieldsP17,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserP18",
     .widgetTable = "P18",
     .title = "项目其他信息",
     .fields = fieldsP18,
     .fill = FillTemplate::Plain,
     .caretToFront = false},
    {.className = "A1ctrlUserPP01", .widgetTable = "P01", .title = "项目基本信息", .fields = fieldsPP01},
    {.className = "A1ctrlUserPP01A", .widgetTable = "P01", .title = "项目基本信息", .fields = fieldsPP01A},
    {.className = "A1ctrlUserJP01", .widgetTable = "P01", .title = "项目基本信息", .fields = fieldsJP01},
};

} // namespace

std::span<const PanelRow> projectPanels() { return rows; }

} // namespace quillmere::catalogue
