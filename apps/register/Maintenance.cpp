#include "register/Maintenance.h"

#include <quillmere/IUserCtrl.h>

#include <QDir>
#include <QUuid>

namespace quillmere::host {

bool openMaintenance(const MaintenanceRun& run) {
    // Photos are stored into the folder, and it is not made by storing.
    QDir().mkpath(QString::fromStdString(run.photoPath));

    IUserCtrl entry;
    entry.setConnection(run.connection);
    entry.setOperationType(static_cast<std::int16_t>(run.operation));
    entry.setZZtype(run.sponsorshipType);
    entry.setPersonID(run.personId);
    entry.setUnitCode(run.unitCode);
    entry.setPhotoPath(run.photoPath);
    return entry.ShowPersonWh();
}

std::string freshIdentity() {
    return QUuid::createUuid().toString(QUuid::WithBraces).toUpper().toStdString();
}

} // namespace quillmere::host
