#pragma once

#include "host/Types.h"

class TDataSet;
class TFiler;
class TLibraryManager;
class TXBookmarkList;

/// The framework's base of things that can be assigned and streamed. Its operations are there for the fixed order of
/// virtual functions; the base gives them no effect.
class TPersistent {
public:
    TPersistent() = default;
    TPersistent(const TPersistent&) = delete;
    TPersistent& operator=(const TPersistent&) = delete;

protected:
    virtual void AssignTo(TPersistent& destination);
    virtual void DefineProperties(TFiler& filer);

public:
    virtual void Assign(const TPersistent& source);
    // Execute of TLibraryItem follows in the table, the destructors come last.

protected:
    ~TPersistent() = default;
};

/// The host's base class of a library item: a plug-in object that a document screen invokes.
class TLibraryItem : public TPersistent {
public:
    explicit TLibraryItem(TLibraryManager* libraryManager);

    /// Called when the user invokes the item; `dataSet` is positioned on the current document, `params` is a
    /// comma-separated list that starts with the screen's document type. True when the document was changed.
    virtual bool Execute(AnsiString params, TDataSet* dataSet, TXBookmarkList* bookmarks) = 0;

    virtual ~TLibraryItem();

protected:
    TLibraryManager* LibraryManager() const { return FLibraryManager; }

private:
    TLibraryManager* FLibraryManager;
};
