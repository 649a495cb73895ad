#include "host/LibraryItem.h"

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
