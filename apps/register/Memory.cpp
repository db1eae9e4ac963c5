#include "register/Memory.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QSettings>
#include <QVariant>

#include <algorithm>

namespace quillmere::host {

namespace {

constexpr auto lastUsed = "database";
constexpr auto windowGeometry = "window/geometry";

QString widthsKey(Kind kind) {
    return kind == Kind::Persons ? QStringLiteral("columns/persons") : QStringLiteral("columns/units");
}

/// A path holds what may stand in no key.
QString groupOf(const QString& path) {
    const QByteArray full = QFileInfo(path).absoluteFilePath().toUtf8();
    return QStringLiteral("recent/") +
           QString::fromLatin1(QCryptographicHash::hash(full, QCryptographicHash::Sha1).toHex());
}

bool isSame(const RecentRecord& record, Kind kind, const std::string& id) {
    return record.kind == kind && record.id == id;
}

} // namespace

Memory::Memory() = default;

Memory::Memory(const QString& registerPath)
    : settings_(std::make_shared<QSettings>()), group_(groupOf(registerPath)) {
    readRecent();
}

QByteArray Memory::geometry() const {
    return settings_ ? settings_->value(windowGeometry).toByteArray() : QByteArray();
}

void Memory::setGeometry(const QByteArray& geometry) {
    if (settings_) settings_->setValue(windowGeometry, geometry);
}

QList<int> Memory::columnWidths(Kind kind) const {
    QList<int> widths;
    if (!settings_) return widths;
    for (const QVariant& width : settings_->value(widthsKey(kind)).toList())
        widths << width.toInt();
    return widths;
}

void Memory::setColumnWidths(Kind kind, const QList<int>& widths) {
    if (!settings_) return;
    QVariantList values;
    for (const int width : widths)
        values << width;
    settings_->setValue(widthsKey(kind), values);
}

void Memory::addRecent(const RecentRecord& record) {
    std::erase_if(recent_, [&](const RecentRecord& each) { return isSame(each, record.kind, record.id); });
    recent_.insert(recent_.begin(), record);
    if (recent_.size() > mostRecent) recent_.resize(mostRecent);
    writeRecent();
}

void Memory::removeRecent(Kind kind, const std::string& id) {
    std::erase_if(recent_, [&](const RecentRecord& each) { return isSame(each, kind, id); });
    writeRecent();
}

void Memory::readRecent() {
    const int count = std::min(settings_->beginReadArray(group_), mostRecent);
    for (int i = 0; i < count; ++i) {
        settings_->setArrayIndex(i);
        const bool unit = settings_->value("kind").toString() == u"unit";
        recent_.push_back({unit ? Kind::Units : Kind::Persons,
                           settings_->value("id").toString().toStdString(),
                           settings_->value("name").toString(), settings_->value("remark").toString()});
    }
    settings_->endArray();
}

void Memory::writeRecent() {
    if (!settings_) return;
    settings_->remove(group_);
    settings_->beginWriteArray(group_, static_cast<int>(recent_.size()));
    for (std::size_t i = 0; i < recent_.size(); ++i) {
        const RecentRecord& record = recent_[i];
        settings_->setArrayIndex(static_cast<int>(i));
        settings_->setValue("kind", record.kind == Kind::Units ? "unit" : "person");
        settings_->setValue("id", QString::fromStdString(record.id));
        settings_->setValue("name", record.name);
        settings_->setValue("remark", record.remark);
    }
    settings_->endArray();
}

QString Memory::lastRegister() { return QSettings().value(lastUsed).toString(); }

void Memory::setLastRegister(const QString& path) {
    QSettings().setValue(lastUsed, QFileInfo(path).absoluteFilePath());
}

} // namespace quillmere::host
