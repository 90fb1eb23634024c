#include "support/SampleEditor.h"

#include "document/TemplateWriter.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

namespace lw::test {

SampleEditor::SampleEditor() {
    CopyFolderIntoMemory(SampleDataDir(), disk, kData);
    weaver.SetViewHost(&host);
    weaver.SetView(&view);
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

} // namespace lw::test
