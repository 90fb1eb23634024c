#pragma once

#include "app/EditorOptions.h"
#include "canvas/InteractionState.h"
#include "catalog/BlocksContainer.h"
#include "catalog/ModelList.h"
#include "catalog/RuleCatalogue.h"
#include "document/TemplateDesc.h"
#include "operations/ObjectStore.h"
#include "platform/FileAccess.h"
#include "platform/OptionsStore.h"
#include "platform/UserPrompts.h"
#include "platform/ViewHost.h"
#include "undo/UndoManager.h"

#include <string>
#include <vector>

namespace lw {

class DrawingSurface;

// The central object: it owns the catalogues, the command history, the
// options and the document (the store it derives from), and every operation
// on them goes through it. The platform reaches it only through the seams it
// is given.
class Weaver : public ObjectStore {
public:
    Weaver(UserPrompts& prompts, OptionsStore& optionsStore, FileSystem& fileSystem);
    ~Weaver() override;

    // Everything the program does at start once its window exists: the data
    // folder, the configuration, the catalogues and the options.
    void StartUp(const std::string& dataFolderPath);

    // Reads "scg\Loomwright.ini" from the data folder.
    void ReadConfiguration();

    // Empties the document and its history; the caller repaints.
    void ClearDocument();
    // Replaces the document by the file's content; a file that does not open
    // leaves an empty document. False when it did not open.
    bool LoadTemplateFile(const std::string& path);
    // Writes the document to `fileName`, whole or not at all. False, with the
    // document still changed, when it could not be written.
    bool SaveTemplateFile();
    // Builds the objects of a template read into an empty document; consumes `desc`.
    void BuildFromDesc(TemplateDesc& desc);
    void ExportToDesc(TemplateDesc& desc) const;

    // "Loomwright - " with the template's path and a "*" while it has changes.
    std::string Title() const;
    void RefreshTitle();
    void Repaint();

    // The Edit menu's history commands: the newest command of one stack goes
    // to the other. Both mark the document as changed and repaint.
    void Undo();
    void Redo();

    // Copies and pastes go through template files (the clipboard is
    // kClipboardPath in the data folder). ExportSelection writes the selected
    // phases, cases and switches with what belongs to them; PlaceTemplate
    // imports a file centred on a window point as one undoable command.
    static constexpr const char* kClipboardPath = "scg\\clipboard.mt";
    void ExportSelection(const std::string& path);
    void PlaceTemplate(const std::string& path, int x, int y, int viewX, int viewY, float scale);
    // Deletes the selection and all that goes with it as one undoable command.
    void DeleteSelection();

    // Rereads the block pool and brings the document into line with it,
    // logging every change to kReloadLogPath, which is then opened for the
    // user. Clears the history; the document stays changed.
    static constexpr const char* kReloadLogPath = "reload_blocks_log.txt";
    void ReloadBlocks();

    // Draws the whole document, with the gesture in progress, as the canvas
    // shows it at this view offset and scale.
    void PaintScene(DrawingSurface& dc, int viewX, int viewY, float scale) const;

    void SetViewHost(ViewHost* host) { viewHost = host; }
    // Sets `currentCursor` and shows it.
    void SetCursor(CanvasCursor cursor);
    // The canvas whose offset and scale the selection's bounds follow.
    void SetView(const ViewTransform* canvasView) { selection.view = canvasView; }
    // The canvas's offset and scale now; the plain view before there is a canvas.
    ViewTransform CurrentView() const {
        return selection.view != nullptr ? *selection.view : ViewTransform{};
    }

    // The seams, in the order they must be built.
    UserPrompts& prompts;
    OptionsStore& optionsStore;
    FileAccess files;

    BlocksContainer blockPool;
    ModelList modelList;
    RuleCatalogue ruleCatalogue;
    UndoManager undoManager;
    EditorOptions options;
    // Path of the open template relative to the data folder; empty for a new one.
    std::string fileName;
    ViewHost* viewHost = nullptr;

    // The data folder in lower case, as paths in the program are compared;
    // files.BaseFolder() holds it as the file system spells it.
    std::string dataFolder;
    std::string tvdFolder = "scg\\0\\";
    std::string modelsPath = "models.cfg";
    std::string actionsPath = "actions.cfg";
    std::vector<std::string> blockFolders;

    // The pointer's gesture, which the canvas shows while it lasts.
    int interactionState = StateIdle;
    CanvasCursor currentCursor = CanvasCursor::Arrow;
    std::int32_t pointerX = 0;
    std::int32_t pointerY = 0;
    ScreenRect bandRect;
    ScreenRect previousBandRect;
    bool bandActive = false;
    // The object being placed; pendingPhase is also the source of a link gesture.
    Phase* pendingPhase = nullptr;
    Case* pendingCase = nullptr;
    Switch* pendingSwitch = nullptr;
    std::string pendingImportPath;
    // The picked link; a source id of 0 means none.
    Link selectedLink;
    // The phase whose primary or secondary geometry link is picked; 0 for none.
    std::uint32_t pickedGeometryPhase = 0;
    bool pickedIsPrimary = true;

protected:
    void ForgetObject(const EditorObject* object) override;

private:
    template <typename Catalogue> void ReadCatalogue(const std::string& path, Catalogue& catalogue);
};

} // namespace lw
