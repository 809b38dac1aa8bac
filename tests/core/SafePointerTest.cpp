#include "core/SafePointer.h"

#include "domain/DomainXmlNode.h"
#include "tests/support/Documents.h"

#include <cstdlib>
#include <new>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{

/// Counts its deaths, and never gives its storage to another object.
class Counted
{
public:
    explicit Counted(int& deaths) : deaths_(deaths) {}
    ~Counted() { ++deaths_; }

    int value = 5;

    static void* operator new(std::size_t size)
    {
        storage().push_back(std::malloc(size));
        return storage().back();
    }
    static void operator delete(void*) {}

private:
    static std::vector<void*>& storage()
    {
        static std::vector<void*>& all = *new std::vector<void*>; // not even freed at the end
        return all;
    }

    int& deaths_;
};

using CountedPointer = SafePointer<Counted>;

template <class Action>
std::string errorOf(Action action)
{
    try
    {
        action();
    }
    catch (const ZTRuntimeError& error)
    {
        return error.what();
    }
    return "no error";
}

std::string reported(const char* message)
{
    return std::string("SafePointer Report:") + typeid(Counted).name() + " " + message;
}

/// Two pointers to one object whose references have both been dropped by the first: the second one dangles.
struct Dangling
{
    Dangling() : first(new Counted(deaths)), second(first)
    {
        first.dec_reference();
        first.dec_reference();
    }

    int deaths = 0;
    CountedPointer first;
    CountedPointer second;
};

/// Makes objects until the count that @p dangling still has belongs to one of them.
std::vector<CountedPointer> objectsThatTakeTheCountOf(const CountedPointer& dangling, int& deaths)
{
    const CapturedOutput output;
    std::vector<CountedPointer> objects;
    objects.reserve(100000);
    while (objects.size() < 100000)
    {
        objects.emplace_back(new Counted(deaths));
        if (errorOf([&] { dangling.inc_reference(); }) == "not valid pointer in inc_reference ") return objects;
    }
    ADD_FAILURE() << "the count was not issued again";
    return objects;
}

} // namespace

static_assert(std::is_base_of<BaseSafePointer, CountedPointer>::value, "one base for all");
static_assert(std::has_virtual_destructor<BaseSafePointer>::value, "whose destructor is virtual");
static_assert(!std::is_nothrow_destructible<CountedPointer>::value, "and may raise");

TEST(SafePointer, HoldsNothingWhenNew)
{
    const CountedPointer pointer;
    EXPECT_FALSE(pointer);
    EXPECT_TRUE(!pointer);
    EXPECT_TRUE(pointer == nullptr);
    EXPECT_TRUE(nullptr == pointer);
    EXPECT_FALSE(pointer != nullptr);
    EXPECT_FALSE(nullptr != pointer);
}

TEST(SafePointer, DeletesTheObjectOnceWithTheLastReference)
{
    int deaths = 0;
    {
        CountedPointer first(new Counted(deaths));
        EXPECT_TRUE(first != nullptr);
        EXPECT_EQ(5, first->value);
        {
            const CountedPointer second(first);
            EXPECT_EQ(5, second->value);
            CountedPointer third;
            third = second;
        }
        EXPECT_EQ(0, deaths);
    }
    EXPECT_EQ(1, deaths);
}

TEST(SafePointer, SharesTheCountOfASecondPointerFromTheSameObject)
{
    int deaths = 0;
    {
        Counted* object = new Counted(deaths);
        const CountedPointer first(object);
        {
            const CountedPointer second(object);
        }
        EXPECT_EQ(0, deaths);
    }
    EXPECT_EQ(1, deaths);
}

TEST(SafePointer, CountsObjectsOfTwoTypesAtOneAddressApart)
{
    int deaths = 0;
    Counted* object = new Counted(deaths);
    RefCountManager* manager = RefCountManager::getInstance();
    ref_count* member = manager->retrieveRefCount(object, "a member at the same address");
    {
        const CountedPointer pointer(object);
    }
    EXPECT_EQ(1, deaths);
    EXPECT_EQ(0, member->dec_reference());
    manager->returnbackRefCount(member, "a member at the same address");
}

TEST(SafePointer, ReleasesWhatItHeldWhenAssigned)
{
    int deaths = 0;
    int others = 0;
    CountedPointer pointer(new Counted(deaths));
    pointer = CountedPointer(new Counted(others));
    EXPECT_EQ(1, deaths);
    EXPECT_EQ(0, others);
}

TEST(SafePointer, ChangesPlacesWithWhatIsMovedToIt)
{
    int deaths = 0;
    int others = 0;
    CountedPointer pointer(new Counted(deaths));
    {
        CountedPointer other(new Counted(others));
        pointer = std::move(other);
        EXPECT_EQ(0, deaths);
    }
    EXPECT_EQ(1, deaths);
    EXPECT_EQ(0, others);

    const CapturedOutput output;
    EXPECT_EQ(reported("Assigned NULL <T>pointer"), errorOf([&] { pointer = CountedPointer(); }));
    EXPECT_EQ(5, pointer->value);
}

TEST(SafePointer, TakesASelfAssignmentForNothing)
{
    int deaths = 0;
    {
        CountedPointer pointer(new Counted(deaths));
        CountedPointer& same = pointer;
        pointer = same;
        pointer = std::move(same);
        EXPECT_EQ(0, deaths);
        const CountedPointer copy(pointer);
        pointer.dec_reference();
        EXPECT_EQ(0, deaths);
        pointer.inc_reference();
    }
    EXPECT_EQ(1, deaths);
}

TEST(SafePointer, SurvivesAnAssignmentFromWithinItsOwnObject)
{
    struct Link
    {
        explicit Link(int& count) : deaths(count) {}
        ~Link() { ++deaths; }
        int& deaths;
        SafePointer<Link> next;
    };
    int deaths = 0;
    SafePointer<Link> head(new Link(deaths));
    head->next = SafePointer<Link>(new Link(deaths));
    head = head->next;
    EXPECT_EQ(1, deaths);
    EXPECT_FALSE(head->next);
}

TEST(SafePointer, IsEmptyAfterItsLastReferenceHasGone)
{
    int deaths = 0;
    CountedPointer pointer(new Counted(deaths));
    pointer.dec_reference();
    EXPECT_EQ(1, deaths);
    EXPECT_FALSE(pointer);
    pointer.dec_reference();
    EXPECT_EQ(1, deaths);
}

TEST(SafePointer, ReportsTheUseOfNull)
{
    CapturedOutput output;
    const CountedPointer empty;
    CountedPointer changeable;
    EXPECT_EQ(reported("Use NULL pointer ->"), errorOf([&] { (void)empty->value; }));
    EXPECT_EQ(reported("Use NULL pointer ->"), errorOf([&] { (void)changeable->value; }));
    EXPECT_EQ(reported("mine"), errorOf([&] { empty.ThrowNullPointerException("mine"); }));
    EXPECT_EQ(reported("mine"), errorOf([&] { changeable.ThrowNullPointerException("mine"); }));
    const std::string use = reported("Use NULL pointer ->") + "\n";
    const std::string mine = reported("mine") + "\n";
    EXPECT_EQ(use + use + mine + mine, output.text());
}

TEST(SafePointer, ReportsTheConstructionFromNull)
{
    const CountedPointer empty;
    EXPECT_EQ(reported("Construct from NULL original pointer"),
              errorOf([] { const CountedPointer pointer(static_cast<Counted*>(nullptr)); }));
    EXPECT_EQ(reported("Construct from NULL <T>pointer"), errorOf([&] { const CountedPointer pointer(empty); }));
}

TEST(SafePointer, ReportsTheAssignmentFromNullBeforeItReleasesAnything)
{
    int deaths = 0;
    const CountedPointer empty;
    CountedPointer pointer(new Counted(deaths));
    EXPECT_EQ(reported("Assigned NULL <T>pointer"), errorOf([&] { pointer = empty; }));
    EXPECT_EQ(0, deaths);
    EXPECT_EQ(5, pointer->value);
}

TEST(SafePointer, ReportsAReferenceToNothing)
{
    const CountedPointer empty;
    EXPECT_EQ(reported("Already destructed 1"), errorOf([&] { empty.inc_reference(); }));

    int deaths = 0;
    CountedPointer gone(new Counted(deaths));
    gone.dec_reference();
    EXPECT_EQ(reported("Already destructed 1"), errorOf([&] { gone.inc_reference(); }));
}

TEST(SafePointer, ReportsAnObjectThatIsGone)
{
    Dangling dangling;
    EXPECT_EQ(1, dangling.deaths);
    EXPECT_EQ(reported("Already destructed 3"), errorOf([&] { dangling.second.inc_reference(); }));
    EXPECT_EQ(reported("Already destructed 3"), errorOf([&] { const CountedPointer copy(dangling.second); }));
    // Its destructor finds nothing left to drop, and deletes nothing again.
    dangling.second.dec_reference();
    EXPECT_EQ(1, dangling.deaths);
}

TEST(SafePointer, ReleasesItsOwnObjectBeforeItReportsTheOther)
{
    Dangling dangling;
    int deaths = 0;
    CountedPointer pointer(new Counted(deaths));
    EXPECT_EQ(reported("Already destructed 3"), errorOf([&] { pointer = dangling.second; }));
    EXPECT_EQ(1, deaths);
    EXPECT_FALSE(pointer);

    // An object that others hold too lives on, with one reference less.
    CountedPointer holder(new Counted(deaths));
    {
        CountedPointer sharer(holder);
        EXPECT_EQ(reported("Already destructed 3"), errorOf([&] { sharer = dangling.second; }));
        EXPECT_FALSE(sharer);
    }
    EXPECT_EQ(1, deaths);
    holder.dec_reference();
    EXPECT_EQ(2, deaths);
}

TEST(SafePointer, ReportsACountThatHasBecomeAnothers)
{
    int deaths = 0;
    {
        Dangling dangling;
        const std::vector<CountedPointer> objects = objectsThatTakeTheCountOf(dangling.second, deaths);
        ASSERT_FALSE(objects.empty());

        // The error has left the count locked. The next lock reports that and does not hang, whichever thread tries.
        std::thread(
            [&] {
                EXPECT_EQ(reported("Already destructed 2"),
                          errorOf([&] { const CountedPointer copy(objects.back()); }));
            })
            .join();
        EXPECT_EQ(reported("Already destructed 2"), errorOf([&] { dangling.second.inc_reference(); }));
        EXPECT_EQ(reported("Already destructed 2"), errorOf([&] { const CountedPointer copy(objects.back()); }));

        CapturedOutput output;
        EXPECT_EQ("not valid pointer in dec_reference", errorOf([&] { dangling.second.dec_reference(); }));
        EXPECT_EQ("", output.text());

        // It never becomes valid again; only by forgetting it can its destructor be kept from raising.
        new (&dangling.second) CountedPointer;
    }
    // The other object dies as it should, although its count was left locked.
    EXPECT_GT(deaths, 0);
}

TEST(SafePointer, RaisesFromItsDestructor)
{
    int deaths = 0;
    alignas(CountedPointer) unsigned char place[sizeof(CountedPointer)];
    CountedPointer* second = nullptr;
    {
        CountedPointer first(new Counted(deaths));
        second = new (place) CountedPointer(first);
        first.dec_reference();
        first.dec_reference();
    }
    const std::vector<CountedPointer> objects = objectsThatTakeTheCountOf(*second, deaths);
    EXPECT_EQ("not valid pointer in dec_reference", errorOf([&] { second->~CountedPointer(); }));
}

TEST(SafePointer, NamesTheTypeOfTheNodesToo)
{
    const SafePointer<DomainXmlNode> empty;
    const std::string error = errorOf([&] { empty->getXmlNode(); });
    EXPECT_EQ(0U, error.find("SafePointer Report:"));
    EXPECT_EQ(error.size() - 19, error.rfind("Use NULL pointer ->"));
}

TEST(ZTRuntimeError, KeepsItsMessage)
{
    EXPECT_STREQ("text", ZTRuntimeError("text").what());
    EXPECT_STREQ("", ZTRuntimeError(nullptr).what());
}
