#include "maintenance/WorkstationUpdate.h"

#include "common/Installation.h"
#include "maintenance/UpdateRegister.h"
#include "maintenance/frmUpdate.h"
#include "platform/File.h"

namespace obrin {

void CheckWorkstationUpdate(HWND owner, int wsid) {
    const std::string key = UpdateKey(wsid);
    File updated(updateRegisterFile, File::Use::ReadWrite);
    const UpdateSearch found = FindUpdateKey(updated.ReadToEnd(), key);
    if (found.updated)
        return;
    frmUpdate().Show(owner);
    if (!IsWindow(owner))
        return; // the program ends; the next start repeats the update
    updated.Seek((found.record - 1) * updateKeyBytes);
    updated.Write(key);
    updated.Flush();
    updated.Close();
}

} // namespace obrin
