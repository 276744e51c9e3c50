#include "services/desktop/AssociationCheck.h"

namespace iw {

void CheckFileAssociations(IFileAssociations& associations, const XmlStore& settings,
                           MessageService& messages) {
    for (const FileType& type : FileTypes()) {
        if (!settings.GetBool(type.checkSetting, true)) continue;
        // A question the user turned off would answer Yes unseen; it must not register.
        if (messages.IsSuppressed(type.question.key)) continue;
        if (associations.IsDefault(type)) continue;
        if (messages.Show(type.question, MessageType::Question, MessageButtons::YesNo) ==
            MessageAnswer::Yes) {
            associations.Register(type);
        }
    }
}

std::array<bool, 3> FileTypePresenter::Load() const {
    std::array<bool, 3> checked{};
    for (std::size_t i = 0; i < checked.size(); ++i)
        checked[i] = settings_.GetBool(FileTypes()[i].checkSetting, true);
    return checked;
}

void FileTypePresenter::Save(const std::array<bool, 3>& checked) {
    for (std::size_t i = 0; i < checked.size(); ++i)
        settings_.SetBool(FileTypes()[i].checkSetting, checked[i]);
}

bool FileTypePresenter::Ok(const std::array<bool, 3>& checked, IFileAssociations& associations) {
    Save(checked);
    bool ok = true;
    for (std::size_t i = 0; i < checked.size(); ++i) {
        const FileType& type = FileTypes()[i];
        if (checked[i] && !associations.IsDefault(type)) ok = associations.Register(type) && ok;
    }
    return ok;
}

}  // namespace iw
