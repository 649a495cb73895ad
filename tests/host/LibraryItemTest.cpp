#include "host/LibraryItem.h"

#include "host/LibraryManager.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

class Item : public TLibraryItem {
public:
    Item(TLibraryManager* manager, bool& destroyed) : TLibraryItem(manager), destroyed_(destroyed) {}
    ~Item() override { destroyed_ = true; }
    bool Execute(AnsiString params, TDataSet*, TXBookmarkList*) override { return params == "DODAK"; }
    using TLibraryItem::LibraryManager;

private:
    bool& destroyed_;
};

/// A manager that is only told apart by its address.
class Manager : public TLibraryManager {
public:
    int MessageBox(const AnsiString&, int) override { return 0; }
    void Message(const AnsiString&, const AnsiString&) override {}
    std::optional<TLookupPick> LookupList(const AnsiString&, const AnsiString&, const AnsiString&,
                                          const AnsiString&) override {
        return std::nullopt;
    }
    void LocalizeForm(TLocalizableForm&, const AnsiString&) override {}
};

TEST(LibraryItem, KeepsTheManagerThatItWasGiven) {
    bool destroyed = false;
    Manager first;
    Manager second;
    const Item one(&first, destroyed);
    const Item other(&second, destroyed);
    EXPECT_EQ(one.LibraryManager(), &first);
    EXPECT_EQ(other.LibraryManager(), &second);
}

TEST(LibraryItem, WorksWithoutAManager) {
    bool destroyed = false;
    const Item item(nullptr, destroyed);
    EXPECT_EQ(item.LibraryManager(), nullptr);
}

TEST(LibraryItem, IsExecutedAndDestroyedThroughItsBase) {
    bool destroyed = false;
    std::unique_ptr<TLibraryItem> item = std::make_unique<Item>(nullptr, destroyed);
    EXPECT_TRUE(item->Execute("DODAK", nullptr, nullptr));
    item.reset();
    EXPECT_TRUE(destroyed);
}

} // namespace
