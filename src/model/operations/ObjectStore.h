#pragma once

#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Link.h"
#include "objects/ObjectsGroup.h"
#include "objects/Phase.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace lw {

// A non-owning list of objects, such as the objects an import is building;
// where a lookup is given one it searches that list instead of the store.
using ObjectList = std::vector<EditorObject*>;

// The id of the phase a check, an action or an unlinker belongs to; 0 for
// every other object.
std::int32_t OwnerPhaseId(const EditorObject& object);

// The document: every object in order of creation (the painting and the
// search order), the links, the selection and the issuing of ids. Objects
// refer to each other by id, and nothing here keeps those references sound:
// whoever reads one skips an id that no longer resolves.
class ObjectStore {
public:
    ObjectStore() = default;
    ObjectStore(const ObjectStore&) = delete;
    ObjectStore& operator=(const ObjectStore&) = delete;
    virtual ~ObjectStore() = default;

    // Calls `visit` with every object of kind T, in list order.
    template <typename T, typename Visit> void ForEach(Visit visit) const {
        for (const auto& object : objects) {
            if (T* typed = As<T>(object.get()))
                visit(*typed);
        }
    }

    // Lookups: names compare exactly, and the first hit in list order wins.
    EditorObject* FindObject(std::int32_t id) const;
    Phase* FindPhase(std::int32_t id) const { return As<Phase>(FindObject(id)); }
    Case* FindCase(std::int32_t id) const { return As<Case>(FindObject(id)); }
    Switch* FindSwitch(std::int32_t id) const { return As<Switch>(FindObject(id)); }
    Phase* FindPhaseByName(const std::string& name, const ObjectList* list = nullptr) const;
    Case* FindCaseByName(const std::string& name, const ObjectList* list = nullptr) const;
    // The first action in the list with these names whose phase, looked up
    // in the whole store, is called `phaseName`.
    Action* FindActionOf(const std::string& phaseName, const std::string& objectName,
                         const std::string& actionName, const ObjectList* list = nullptr) const;
    // Where a link's line starts, at its source's output gate, or ends, at its
    // destination's input gate; (0, 0) for a phase or gate that is missing.
    ScreenPoint LinkEnd(const Link& link, bool atDestination, const ViewTransform& view) const;
    bool PhaseNameTaken(std::int32_t id, const std::string& name) const;
    bool CaseNameTaken(std::int32_t id, const std::string& name) const;
    bool SwitchNameTaken(std::int32_t id, const std::string& name) const;
    // Whether the phase has an action of these names; "Script" never makes
    // an action, so it counts as present.
    bool HasPhaseAction(const Phase& phase, const std::string& actionName,
                        const std::string& objectName) const;

    // Creation under the next id. The object has no position until its
    // creator gives it one, and stands in the store from the start.
    Phase* NewPhase();
    Case* NewCase();
    Switch* NewSwitch();
    Check* NewCheck();
    Action* NewAction();
    Unlinker* NewUnlinker();

    // Enters an object rebuilt under its old id at the end of the list.
    EditorObject* Restore(std::unique_ptr<EditorObject> object);
    // Destroys the object and takes it out of the selection. Other objects'
    // references to it are the caller's matter.
    void RemoveObject(EditorObject* object);
    // Destroys every one of the objects as RemoveObject would one after the
    // other, in one pass over the store; the others keep their order.
    void RemoveObjects(const std::vector<EditorObject*>& doomed);
    // Removes the first equal link; the gate marks stay until refreshed.
    void RemoveLink(const Link& link);
    // Removes links as RemoveLink would one after the other, in one pass.
    void RemoveLinks(const std::vector<Link>& doomed);
    // Opens every gate, then closes those that a link uses.
    void RefreshGateMarks();

    // Empties the selection and the store; ids start again at 1.
    void ClearObjects();

    std::vector<std::unique_ptr<EditorObject>> objects;
    std::vector<Link> links;
    ObjectsGroup selection;
    std::int32_t nextId = 1;
    // Every object by its id, for lookups that cost no walk of the list.
    std::unordered_map<std::int32_t, EditorObject*> objectIndex;

protected:
    // Called just before an object is destroyed, so that nothing that only
    // points at it keeps it.
    virtual void ForgetObject(const EditorObject* object);

private:
    template <typename T> T* Create();
    template <typename T> T* CreateNamed(const char* prefix);
    template <typename T> T* FindByName(const std::string& name, const ObjectList* list) const;
    template <typename T> bool NameTaken(std::int32_t id, const std::string& name) const;
};

} // namespace lw
