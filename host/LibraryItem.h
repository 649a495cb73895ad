#pragma once

/// \file
/// What a plug-in implements: the item that a document screen invokes.

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
    /// Copies this into another object.
    virtual void AssignTo(TPersistent& destination);
    /// Tells a stream what to keep.
    virtual void DefineProperties(TFiler& filer);

public:
    /// Copies another object into this.
    virtual void Assign(const TPersistent& source);
    // Execute of TLibraryItem follows in the table, the destructors come last.

protected:
    ~TPersistent() = default;
};

/// The host's base class of a library item: a plug-in object that a document screen invokes. A plug-in derives from it
/// and registers its class (RegisterClasses); a host makes an object by the class's name (TClassRegistry::Create),
/// calls Execute and looks at the answer. One object serves any number of calls, one after the other.
class TLibraryItem : public TPersistent {
public:
    /// The manager may be null and must outlive the item.
    explicit TLibraryItem(TLibraryManager* libraryManager);

    /// Called when the user invokes the item; `dataSet` is positioned on the current document, `params` is a
    /// comma-separated list that starts with the screen's document type ("DODAK" or "DODAK,SABLONA"). Both pointers are
    /// needed during the call only; the bookmarks may be null. It runs windows of its own and returns when they are
    /// closed. True when the document was changed: the screen reads it anew. What goes wrong outside a window's events
    /// leaves it as an exception.
    virtual bool Execute(AnsiString params, TDataSet* dataSet, TXBookmarkList* bookmarks) = 0;

    virtual ~TLibraryItem();

protected:
    /// What the constructor was given, null without one.
    TLibraryManager* LibraryManager() const { return FLibraryManager; }

private:
    TLibraryManager* FLibraryManager;
};
