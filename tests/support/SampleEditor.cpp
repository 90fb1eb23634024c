#include "support/SampleEditor.h"

#include "document/TemplateWriter.h"
#include "support/TestFiles.h"
#include "synth/SyntheticTemplate.h"

#include <gtest/gtest.h>
#include <iterator>

namespace lw::test {

SampleEditor::SampleEditor() {
    CopyFolderIntoMemory(SampleDataDir(), disk, kData);
    weaver.SetViewHost(&host);
    weaver.SetView(&view);
}

void SampleEditor::AddGeneratedData(int phases) {
    for (const auto& [path, bytes] : synth::GenerateSyntheticData({phases, "P"}).files)
        disk.AddFile(std::string(kData) + "/" + path, bytes);
}

void SampleEditor::StartUp() {
    // The last used template of a real profile must not leak into a test.
    store.SetInt(EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 0);
    weaver.StartUp(kData);
}

void SampleEditor::Open(const std::string& path) {
    StartUp();
    EXPECT_TRUE(weaver.LoadTemplateFile(path)) << path;
}

std::string SampleEditor::SavedText() const {
    TemplateDesc desc;
    weaver.ExportToDesc(desc);
    return TemplateDescText(desc);
}

std::string SampleEditor::DataFileText(const std::string& path) const {
    auto stream = weaver.files.OpenForReading(path);
    return stream ? std::string(std::istreambuf_iterator<char>(*stream), {}) : "<missing>";
}

void SampleEditor::Select(const std::string& name) {
    for (const auto& object : weaver.objects) {
        const EditorObject* named = object.get();
        const bool match = (As<Phase>(named) && As<Phase>(named)->name == name) ||
                           (As<Case>(named) && As<Case>(named)->name == name) ||
                           (As<Switch>(named) && As<Switch>(named)->name == name);
        if (match) {
            weaver.selection.Add(object.get());
            weaver.selection.Recalculate();
            return;
        }
    }
    ADD_FAILURE() << "no object named " << name;
}

} // namespace lw::test
