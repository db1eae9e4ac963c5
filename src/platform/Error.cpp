#include "platform/Error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

struct Description {
    Failure failure;
    std::string_view text;
};

/// The words in which the automation platform and its data access tell their failures, so that users
/// and help desks meet the wording that they know.
constexpr std::array descriptions{
    Description{Failure::InvalidCall, "无效的过程调用或参数"},
    Description{Failure::Overflow, "溢出"},
    Description{Failure::SubscriptOutOfRange, "下标越界"},
    Description{Failure::TypeMismatch, "类型不匹配"},
    Description{Failure::FileNotFound, "文件未找到"},
    Description{Failure::PermissionDenied, "拒绝的权限"},
    Description{Failure::PathAccess, "路径/文件访问错误"},
    Description{Failure::PathNotFound, "路径未找到"},
    Description{Failure::ObjectNotSet, "对象变量或 With 块变量未设置"},
    Description{Failure::InvalidUseOfNull, "无效使用 Null"},
    Description{Failure::CannotCreateObject, "ActiveX 部件不能创建对象"},
    Description{Failure::MemberNotFound, "对象不支持该属性或方法"},
    Description{Failure::KeyAlreadyUsed, "该键已经与该集合的一个元素关联"},
    Description{Failure::InvalidPicture, "无效图片"},
    Description{Failure::BadArguments, "参数类型不正确，或不在可以接受的范围之内，或与其他参数冲突。"},
    Description{Failure::NoCurrentRecord,
                "BOF 或 EOF 中有一个是“真”，或者当前的记录已被删除，所需的操作要求一个当前的记录。"},
    Description{Failure::ItemNotFound, "在对应所需名称或序数的集合中，未找到项目。"},
    Description{Failure::ObjectClosed, "对象关闭时，不允许操作。"},
    Description{Failure::InvalidConnection, "连接无法用于执行此操作。在此上下文中它可能已被关闭或无效。"},
    Description{Failure::StatementFailed, "命令中发生了一个或多个错误。"},
    Description{Failure::ConstraintFailed, "值违反了该列或表的完整性约束。"},
    Description{Failure::Unspecified, "未指定的错误"},
};

} // namespace

struct Error::Details {
    int number;
    std::string source;
    std::string description;
};

std::string_view descriptionOf(Failure failure) {
    const auto* found = std::find_if(descriptions.begin(), descriptions.end(),
                                     [failure](const auto& row) { return row.failure == failure; });
    // A number of an engine's own has no words here.
    return found == descriptions.end() ? descriptionOf(Failure::Unspecified) : found->text;
}

Error::Error(Failure failure, std::string source)
    : Error(failure, std::string(descriptionOf(failure)), std::move(source)) {}

Error::Error(Failure failure, std::string description, std::string source)
    : details_(std::make_shared<const Details>(
          Details{static_cast<int>(failure), std::move(source), std::move(description)})) {}

Error::Error(const Error&) noexcept = default;
Error& Error::operator=(const Error&) noexcept = default;
Error::~Error() = default;

int Error::number() const noexcept { return details_->number; }

const std::string& Error::source() const noexcept { return details_->source; }

const std::string& Error::description() const noexcept { return details_->description; }

const char* Error::what() const noexcept { return details_->description.c_str(); }

} // namespace quillmere
