#include "QtFileDialogs.h"

#include "QtText.h"

#include <QDir>
#include <QFileDialog>
#include <QStringList>

namespace {

// The dialog keeps the program's working folder alone and shows no
// places bar of its own: only the folder and the name given.
bool RunDialog(QWidget* parent, QFileDialog::AcceptMode mode, const std::string& startFolder,
               const lw::FileRequest& request, std::string& chosenPath) {
    QFileDialog dialog(parent);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                       : QFileDialog::AnyFile);
    dialog.setNameFilters(QtFilterFromRequest(request.filter).split('\n'));
    QString suffix = ToQString(request.extension);
    suffix.remove(QStringLiteral("*."));
    dialog.setDefaultSuffix(suffix);
    if (!startFolder.empty())
        dialog.setDirectory(PathToQString(startFolder));
    if (!request.fileName.empty())
        dialog.selectFile(ToQString(request.fileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    chosenPath = PathToStdString(QDir::cleanPath(dialog.selectedFiles().first()));
    return true;
}

} // namespace

QString QtFilterFromRequest(const std::string& filter) {
    const QStringList parts = ToQString(filter).split('|', Qt::SkipEmptyParts);
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString& description = parts[i];
        const QString patterns = QString(parts[i + 1]).replace(';', ' ');
        filters << (description.contains(patterns) ? description
                                                   : description + " (" + patterns + ")");
    }
    return filters.join('\n');
}

bool QtFileDialogs::ShowOpenDialog(const std::string& startFolder, const lw::FileRequest& request,
                                   std::string& chosenPath) {
    return RunDialog(parent_, QFileDialog::AcceptOpen, startFolder, request, chosenPath);
}

bool QtFileDialogs::ShowSaveDialog(const std::string& startFolder, const lw::FileRequest& request,
                                   std::string& chosenPath) {
    return RunDialog(parent_, QFileDialog::AcceptSave, startFolder, request, chosenPath);
}
