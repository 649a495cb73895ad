#include "host/ClassRegistry.h"

#include "host/LibraryItem.h"
#include "host/LibraryManager.h"
#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>

namespace {

class Item : public TLibraryItem {
public:
    Item(TLibraryManager* manager, bool answer) : TLibraryItem(manager), answer_(answer) {}
    bool Execute(AnsiString, TDataSet*, TXBookmarkList*) override { return answer_; }
    using TLibraryItem::LibraryManager;

private:
    bool answer_;
};

TRegisteredClass itemClass(const char* name, bool answer) {
    return {name, [answer](TLibraryManager* manager) { return std::make_unique<Item>(manager, answer); }};
}

class Manager : public TLibraryManager {
public:
    int MessageBox(const AnsiString&, int) override { return c_ResultOk; }
    void Message(const AnsiString&, const AnsiString&) override {}
    std::optional<TLookupPick> LookupList(const AnsiString&, const AnsiString&, const AnsiString&,
                                          const AnsiString&) override {
        return std::nullopt;
    }
    void LocalizeForm(TLocalizableForm&, const AnsiString&) override {}
};

TEST(ClassRegistry, CreatesTheNamedClassWithTheManager) {
    TClassRegistry registry;
    registry.Register(itemClass("TFirst", false));
    registry.Register(itemClass("TSecond", true));
    Manager manager;

    const auto item = registry.Create("TSecond", &manager);

    EXPECT_TRUE(item->Execute("", nullptr, nullptr));
    EXPECT_EQ(dynamic_cast<Item&>(*item).LibraryManager(), &manager);
}

TEST(ClassRegistry, RefusesAnUnknownClassByName) {
    const TClassRegistry registry;
    EXPECT_EQ(messageOf<EHostError>([&] { registry.Create("TMissing", nullptr); }),
              "Třída TMissing není zaregistrována.");
}

TEST(ClassRegistry, NamesAreCaseSensitive) {
    TClassRegistry registry;
    registry.Register(itemClass("TFirst", true));
    EXPECT_TRUE(registry.Contains("TFirst"));
    EXPECT_FALSE(registry.Contains("tfirst"));
    EXPECT_FALSE(registry.Contains("TFirs"));
}

TEST(ClassRegistry, RegisteringAgainReplacesTheFactory) {
    TClassRegistry registry;
    registry.Register(itemClass("TFirst", false));
    registry.Register(itemClass("TFirst", true));
    EXPECT_TRUE(registry.Create("TFirst", nullptr)->Execute("", nullptr, nullptr));
}

TEST(ClassRegistry, PackagesRegisterWithTheCurrentHost) {
    FakeHost host;
    const TScopedHost installed(host);
    RegisterClasses({itemClass("TFirst", true), itemClass("TSecond", true)});
    EXPECT_TRUE(host.Classes().Contains("TFirst"));
    EXPECT_TRUE(host.Classes().Contains("TSecond"));
}

TEST(ClassRegistry, RegisteringWithoutAHostIsRefused) {
    EXPECT_THROW(RegisterClasses({itemClass("TFirst", true)}), EHostError);
}

} // namespace
