#include "domain/DomainXmlNode.h"

#include "tests/support/Documents.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <tinyxml.h>

using Node = SafePointer<DomainXmlNode>;

namespace
{

Node make(const std::string& name)
{
    return Node(new DomainXmlNode(name));
}

Node parsed(const std::string& text)
{
    Node node;
    EXPECT_TRUE(DomainXmlNode::parse(text, node)) << text;
    return node;
}

Node child(const Node& node, const std::string& name)
{
    Node result;
    EXPECT_TRUE(node->getConfigNode(name, result)) << name;
    return result;
}

std::string text(const Node& node)
{
    std::string result;
    EXPECT_TRUE(DomainXmlNode::toString(node, result));
    return result;
}

/// A slot for a node, emptied by hand.
class Slot
{
public:
    explicit Slot(const Node& node) : node_(new Node(node)) {}
    Node& operator*() const { return *node_; }
    Node* operator->() const { return node_.get(); }
    void drop() { node_.reset(); }

private:
    std::unique_ptr<Node> node_;
};

} // namespace

static_assert(sizeof(DomainXmlNode) == sizeof(void*), "an element and nothing else");

TEST(DomainXmlNode, SetsAndGetsEveryKindOfProperty)
{
    Node node = make("Node");
    EXPECT_TRUE(node->setProperty("Int", std::numeric_limits<int>::min()));
    EXPECT_TRUE(node->setProperty("Flag", true));
    EXPECT_TRUE(node->setProperty("Float", 0.1F));
    EXPECT_TRUE(node->setProperty("Large", std::numeric_limits<unsigned long long>::max()));
    EXPECT_TRUE(node->setProperty("Chars", "a<b"));
    EXPECT_TRUE(node->setProperty(std::string("String"), std::string("x y")));
    EXPECT_TRUE(node->setProperty(std::string("Empty"), ""));
    EXPECT_EQ("<Node Int=\"-2147483648\" Flag=\"true\" Float=\"0.1\" Large=\"18446744073709551615\" "
              "Chars=\"a&lt;b\" String=\"x y\" Empty=\"\" />\n",
              text(node));

    node = parsed(text(node));
    int integer = 0;
    bool flag = false;
    float number = 0;
    unsigned long long large = 0;
    std::string chars;
    EXPECT_TRUE(node->getProperty("Int", integer));
    EXPECT_EQ(std::numeric_limits<int>::min(), integer);
    EXPECT_TRUE(node->getProperty("Flag", flag));
    EXPECT_TRUE(flag);
    EXPECT_TRUE(node->getProperty(std::string("Float"), number));
    EXPECT_EQ(0.1F, number);
    EXPECT_TRUE(node->getProperty("Large", large));
    EXPECT_EQ(std::numeric_limits<unsigned long long>::max(), large);
    EXPECT_TRUE(node->getProperty("Chars", chars));
    EXPECT_EQ("a<b", chars);
    EXPECT_TRUE(node->getProperty(std::string("Empty"), chars));
    EXPECT_EQ("", chars);
}

TEST(DomainXmlNode, LeavesTheOutputOfAMissingProperty)
{
    const Node node = make("Node");
    int integer = 123;
    bool flag = true;
    float number = 1.5F;
    unsigned long long large = 5;
    std::string chars = "preset";
    EXPECT_FALSE(node->getProperty("None", integer));
    EXPECT_FALSE(node->getProperty("None", flag));
    EXPECT_FALSE(node->getProperty("None", number));
    EXPECT_FALSE(node->getProperty("None", large));
    EXPECT_FALSE(node->getProperty("None", chars));
    EXPECT_EQ(123, integer);
    EXPECT_TRUE(flag);
    EXPECT_EQ(1.5F, number);
    EXPECT_EQ(5U, large);
    EXPECT_EQ("preset", chars);
}

TEST(DomainXmlNode, TakesWhatDoesNotConvertForPresent)
{
    const Node node = parsed("<Node A='abc' B='12abc' C='4294967297' D='TRUE' E='1' F='-1' G='0.5.5' />");
    int integer = 7;
    EXPECT_TRUE(node->getProperty("A", integer));
    EXPECT_EQ(0, integer);
    EXPECT_TRUE(node->getProperty("B", integer));
    EXPECT_EQ(12, integer);
    EXPECT_TRUE(node->getProperty("C", integer));
    EXPECT_EQ(1, integer);
    bool flag = true;
    EXPECT_TRUE(node->getProperty("D", flag));
    EXPECT_FALSE(flag);
    EXPECT_TRUE(node->getProperty("E", flag));
    EXPECT_TRUE(flag);
    unsigned long long large = 7;
    EXPECT_TRUE(node->getProperty("F", large));
    EXPECT_EQ(std::numeric_limits<unsigned long long>::max(), large);
    EXPECT_TRUE(node->getProperty("A", large));
    EXPECT_EQ(0U, large);
    float number = 7;
    EXPECT_TRUE(node->getProperty("G", number));
    EXPECT_EQ(0.5F, number);
    EXPECT_TRUE(node->getProperty("A", number));
    EXPECT_EQ(0, number);
}

TEST(DomainXmlNode, ReplacesAPropertyInItsPlace)
{
    Node node = make("Node");
    node->setProperty("A", 1);
    node->setProperty("B", 2);
    node->setProperty("A", 3);
    EXPECT_EQ("<Node A=\"3\" B=\"2\" />\n", text(node));
}

TEST(DomainXmlNode, RefusesANullText)
{
    Node node = make("Node");
    EXPECT_FALSE(node->setProperty("A", static_cast<const char*>(nullptr)));
    EXPECT_EQ("<Node />\n", text(node));
}

TEST(DomainXmlNode, TellsItsName)
{
    std::string name;
    EXPECT_TRUE(make("Node")->getNodeName(name));
    EXPECT_EQ("Node", name);
}

TEST(DomainXmlNode, FindsChildrenByNameAmongElementsOnly)
{
    const Node node = parsed("<Node>text<!--A--><B n='1'/><A n='2'/><![CDATA[A]]><A n='3'/></Node>");
    EXPECT_EQ("<A n=\"2\" />\n", text(child(node, "A")));

    std::vector<Node> children;
    EXPECT_TRUE(node->getConfigNodeList("A", children));
    ASSERT_EQ(2U, children.size());
    EXPECT_EQ("<A n=\"3\" />\n", text(children[1]));

    EXPECT_TRUE(node->getAllConfigNodeList(children));
    ASSERT_EQ(3U, children.size());
    EXPECT_EQ("<B n=\"1\" />\n", text(children[0]));
}

TEST(DomainXmlNode, GivesEmptyListsWhereThereIsNothing)
{
    const Node node = make("Node");
    std::vector<Node> children(1, make("Old"));
    EXPECT_TRUE(node->getConfigNodeList("A", children));
    EXPECT_TRUE(children.empty());
    children.push_back(make("Old"));
    EXPECT_TRUE(node->getAllConfigNodeList(children));
    EXPECT_TRUE(children.empty());
}

TEST(DomainXmlNode, LeavesTheOutputWhereThereIsNoChild)
{
    const Node node = make("Node");
    Node empty;
    EXPECT_FALSE(node->getConfigNode("A", empty));
    EXPECT_FALSE(empty);
    Node full = make("Full");
    EXPECT_FALSE(node->getConfigNode("A", full));
    EXPECT_EQ("<Full />\n", text(full));
}

TEST(DomainXmlNode, AddsChildrenInOrder)
{
    Node node = make("Node");
    for (int number = 1; number <= 2; ++number)
    {
        Node item = make("Item");
        item->setProperty("n", number);
        EXPECT_TRUE(node->addConfigNode(item));
    }
    EXPECT_EQ("<Node>\n\t<Item n=\"1\" />\n\t<Item n=\"2\" />\n</Node>\n", text(node));
}

TEST(DomainXmlNode, AddsTheSameNodeTwice)
{
    Node node = make("Node");
    Node item = make("Item");
    EXPECT_TRUE(node->addConfigNode(item));
    EXPECT_TRUE(node->addConfigNode(item));
    EXPECT_EQ("<Node>\n\t<Item />\n\t<Item />\n</Node>\n", text(node));
}

TEST(DomainXmlNode, RefusesToAddNothing)
{
    Node node = make("Node");
    Node empty;
    EXPECT_FALSE(node->addConfigNode(empty));
    Node hollow(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(node->addConfigNode(hollow));
    EXPECT_FALSE(hollow->addConfigNode(node));
}

TEST(DomainXmlNode, RefusesToAddANodeBelowItself)
{
    Node node = make("Node");
    Node inner = make("Inner");
    Node innermost = make("Innermost");
    inner->addConfigNode(innermost);
    node->addConfigNode(inner);
    EXPECT_FALSE(node->addConfigNode(node));
    EXPECT_FALSE(innermost->addConfigNode(inner));
    EXPECT_FALSE(innermost->addConfigNode(node));
    EXPECT_EQ("<Node>\n\t<Inner>\n\t\t<Innermost />\n\t</Inner>\n</Node>\n", text(node));
}

TEST(DomainXmlNode, KeepsTheElementOfAnAddedChildThatIsHeld)
{
    Slot node(make("Node"));
    Node item = make("Item");
    TiXmlElement* element = item->getXmlNode();
    (*node)->addConfigNode(item);
    EXPECT_EQ(element, item->getXmlNode());
    node.drop();
    EXPECT_TRUE(item->setProperty("n", 1));
    EXPECT_EQ("<Item n=\"1\" />\n", text(item));
}

TEST(DomainXmlNode, OutlivesTheChildrenThatWritersDrop)
{
    Node node = make("Node");
    {
        Node list = make("List");
        {
            Node item = make("Item");
            list->addConfigNode(item);
        }
        node->addConfigNode(list);
    }
    EXPECT_EQ("<Node>\n\t<List>\n\t\t<Item />\n\t</List>\n</Node>\n", text(node));
}

TEST(DomainXmlNode, KeepsAParsedTreeAsLongAsOneNodeIsHeld)
{
    Slot root(parsed("<Root><List><Item n='1'/><Item n='2'/></List></Root>"));
    Slot list(child(*root, "List"));
    std::vector<Node> items;
    EXPECT_TRUE((*list)->getAllConfigNodeList(items));

    *root = parsed("<Other />");
    EXPECT_EQ("<List>\n\t<Item n=\"1\" />\n\t<Item n=\"2\" />\n</List>\n", text(*list));
    root.drop();
    list.drop();
    items.erase(items.begin());
    EXPECT_EQ("<Item n=\"2\" />\n", text(items.front()));
}

TEST(DomainXmlNode, SurvivesDeathsInEveryOrder)
{
    // Five nodes of one tree, three of them joined to it while held, dropped in each of the 120 orders.
    std::vector<int> order = {0, 1, 2, 3, 4};
    do
    {
        std::vector<std::unique_ptr<Node>> nodes;
        for (const char* name : {"A", "B", "C"})
            nodes.emplace_back(new Node(make(name)));
        (*nodes[1])->addConfigNode(*nodes[2]);
        (*nodes[0])->addConfigNode(*nodes[1]);
        nodes.emplace_back(new Node(parsed("<D><E/></D>")));
        nodes.emplace_back(new Node(child(*nodes[3], "E")));
        (*nodes[2])->addConfigNode(*nodes[3]);

        for (const int number : order)
        {
            std::string name;
            ASSERT_TRUE((*nodes[static_cast<std::size_t>(number)])->getNodeName(name));
            ASSERT_EQ(std::string(1, static_cast<char>('A' + number)), name);
            nodes[static_cast<std::size_t>(number)].reset();
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(DomainXmlNode, MovesTheRootOfAParsedText)
{
    Slot root(parsed("<?xml version='1.0'?><!-- --><Root><Item/></Root>"));
    Slot item(child(*root, "Item"));
    TiXmlElement* element = (*root)->getXmlNode();
    Slot node(make("Node"));
    EXPECT_TRUE((*node)->addConfigNode(*root));
    EXPECT_EQ(element, (*node)->getXmlNode()->FirstChildElement());
    root.drop();
    EXPECT_EQ("<Node>\n\t<Root>\n\t\t<Item />\n\t</Root>\n</Node>\n", text(*node));
    node.drop();
    EXPECT_EQ("<Item />\n", text(*item));
}

TEST(DomainXmlNode, CopiesARootThatIsNotAlone)
{
    const Node root = parsed("<Root/><Second/>");
    Node movable = root;
    Node node = make("Node");
    EXPECT_TRUE(node->addConfigNode(movable));
    EXPECT_NE(root->getXmlNode(), node->getXmlNode()->FirstChildElement());
    EXPECT_EQ("<Node>\n\t<Root />\n</Node>\n", text(node));
    EXPECT_NE(nullptr, root->getXmlNode()->NextSiblingElement());
}

TEST(DomainXmlNode, CopiesANodeFromTheMiddleOfAnotherTree)
{
    Slot root(parsed("<Root><List><Item/></List></Root>"));
    Node list = child(*root, "List");
    Node node = make("Node");
    EXPECT_TRUE(node->addConfigNode(list));
    EXPECT_EQ("<Root>\n\t<List>\n\t\t<Item />\n\t</List>\n</Root>\n", text(*root));
    root.drop();
    EXPECT_EQ("<Node>\n\t<List>\n\t\t<Item />\n\t</List>\n</Node>\n", text(node));
    EXPECT_EQ("<List>\n\t<Item />\n</List>\n", text(list));
}

TEST(DomainXmlNode, LeavesAForeignElementAlone)
{
    TiXmlElement element("Foreign");
    {
        Node wrapper(new DomainXmlNode(&element));
        EXPECT_TRUE(wrapper->setProperty("n", 1));
        Node inner = make("Inner");
        EXPECT_TRUE(wrapper->addConfigNode(inner));
        const Node found = child(wrapper, "Inner");
        EXPECT_EQ("<Inner />\n", text(found));
        EXPECT_EQ("<Inner />\n", text(inner));
    }
    TiXmlPrinter printer;
    element.Accept(&printer);
    EXPECT_STREQ("<Foreign n=\"1\">\n    <Inner />\n</Foreign>\n", printer.CStr());
}

TEST(DomainXmlNode, LeavesACopyOfAnElementOfItsOwnAlone)
{
    TiXmlDocument document;
    {
        Node node = make("Node");
        node->setProperty("n", 1);
        document.InsertEndChild(*node->getXmlNode());
        const Node parsedNode = parsed("<Parsed />");
        document.InsertEndChild(*parsedNode->getXmlNode());
    }
    const std::unique_ptr<TiXmlNode> loose(make("Loose")->getXmlNode()->Clone());
    {
        const Node wrapper(new DomainXmlNode(document.FirstChildElement()));
        const Node second(new DomainXmlNode(document.FirstChildElement()->NextSiblingElement()));
        const Node third(new DomainXmlNode(loose->ToElement()));
    }
    EXPECT_STREQ("1", document.FirstChildElement()->Attribute("n"));
    EXPECT_STREQ("Parsed", document.LastChild()->Value());
    EXPECT_STREQ("Loose", loose->Value());
}

TEST(DomainXmlNode, MayOutliveAForeignElement)
{
    std::unique_ptr<TiXmlElement> element(new TiXmlElement("Foreign"));
    element->InsertEndChild(TiXmlElement("Inner"));
    const Node wrapper(new DomainXmlNode(element.get()));
    const Node inner = child(wrapper, "Inner");
    std::vector<Node> all;
    EXPECT_TRUE(wrapper->getAllConfigNodeList(all));
    EXPECT_EQ(1U, all.size());
    EXPECT_EQ(element.get(), wrapper->getXmlNode());
    EXPECT_EQ(element->FirstChildElement(), inner->getXmlNode());
    // The nodes die after it, and must not look at it then: the sanitizers and valgrind tell.
    element.reset();
}

TEST(DomainXmlNode, DoesNotTakeAForeignElementFromItsOwner)
{
    TiXmlElement element("Foreign");
    Node wrapper(new DomainXmlNode(&element));
    {
        Node node = make("Node");
        EXPECT_TRUE(node->addConfigNode(wrapper));
        EXPECT_EQ("<Node>\n\t<Foreign />\n</Node>\n", text(node));
    }
    EXPECT_EQ(nullptr, element.Parent());
    EXPECT_STREQ("Foreign", element.Value());
}

TEST(DomainXmlNode, HoldsItsOwnTreeThroughASecondNode)
{
    Slot root(parsed("<Root><Item/></Root>"));
    const Node second(new DomainXmlNode((*root)->getXmlNode()->FirstChildElement()));
    root.drop();
    EXPECT_EQ("<Item />\n", text(second));
}

TEST(DomainXmlNode, RemovesChildrenAndKeepsProperties)
{
    Node node = parsed("<Node n='1'>text<Item/><!-- --><Item/></Node>");
    node->cleanChildren();
    EXPECT_EQ("<Node n=\"1\" />\n", text(node));
    node->cleanChildren();
    Node item = make("New");
    node->addConfigNode(item);
    EXPECT_EQ("<Node n=\"1\">\n\t<New />\n</Node>\n", text(node));
}

TEST(DomainXmlNode, KeepsRemovedChildrenThatAreHeld)
{
    Slot node(parsed("<Node><List><Item/></List></Node>"));
    Slot list(child(*node, "List"));
    const Node item = child(*list, "Item");
    (*node)->cleanChildren();
    EXPECT_EQ("<Node />\n", text(*node));
    EXPECT_EQ("<List>\n\t<Item />\n</List>\n", text(*list));

    // Joined to another tree, they still live as long as any node of it.
    Slot other(make("Other"));
    EXPECT_TRUE((*other)->addConfigNode(*node));
    EXPECT_TRUE((*other)->addConfigNode(*list));
    node.drop();
    list.drop();
    EXPECT_EQ("<Other>\n\t<Node />\n\t<List>\n\t\t<Item />\n\t</List>\n</Other>\n", text(*other));
    other.drop();
    EXPECT_EQ("<Item />\n", text(item));
}

TEST(DomainXmlNode, ParsesARootOfTheNameOnly)
{
    Node node;
    EXPECT_FALSE(DomainXmlNode::parse("<Other />", "Root", node));
    EXPECT_FALSE(node);
    EXPECT_TRUE(DomainXmlNode::parse("<Other />", node));
    EXPECT_EQ("<Other />\n", text(node));

    EXPECT_FALSE(DomainXmlNode::parse("<Other /><Root />", "Root", node));
    EXPECT_TRUE(DomainXmlNode::parse("<?xml version='1.0'?><!--Other--><Root /><Other />", "Root", node));
    EXPECT_EQ("<Root />\n", text(node));
}

TEST(DomainXmlNode, LeavesTheOutputOfAFailedParse)
{
    for (const char* bad :
         {"", " ", "<Root", "<Root>", "<Root a='1' a='2' />", "<!--Root-->", "<Root></Other>", "Root"})
    {
        Node empty;
        EXPECT_FALSE(DomainXmlNode::parse(bad, "Root", empty)) << bad;
        EXPECT_FALSE(DomainXmlNode::parse(bad, empty)) << bad;
        EXPECT_FALSE(empty) << bad;
        Node full = make("Full");
        EXPECT_FALSE(DomainXmlNode::parse(bad, "Root", full)) << bad;
        EXPECT_EQ("<Full />\n", text(full));
    }
}

TEST(DomainXmlNode, RefusesTextsThatAreTooDeep)
{
    std::string deep;
    for (int level = 0; level < 33; ++level)
        deep = "<Root>" + deep + "</Root>";
    Node node;
    EXPECT_FALSE(DomainXmlNode::parse(deep, "Root", node));
    EXPECT_TRUE(DomainXmlNode::parse(deep.substr(6, deep.size() - 13), "Root", node));
}

TEST(DomainXmlNode, PrintsNothingForAnEmptyPointer)
{
    const Node empty;
    std::string result = "old";
    EXPECT_FALSE(DomainXmlNode::toString(empty, result));
    const Node hollow(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(DomainXmlNode::toString(hollow, result));
    EXPECT_EQ("old", result);
}

TEST(DomainXmlNode, FailsInEverythingWithoutAnElement)
{
    Node node(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    int integer = 7;
    std::string chars = "old";
    std::vector<Node> children(1, make("Old"));
    Node output;
    EXPECT_FALSE(node->setProperty("A", 1));
    EXPECT_FALSE(node->setProperty("A", true));
    EXPECT_FALSE(node->setProperty("A", 1.0F));
    EXPECT_FALSE(node->setProperty("A", 1ULL));
    EXPECT_FALSE(node->setProperty("A", "x"));
    EXPECT_FALSE(node->setProperty("A", chars));
    EXPECT_FALSE(node->getProperty("A", integer));
    EXPECT_FALSE(node->getConfigNode("A", output));
    EXPECT_FALSE(node->getConfigNodeList("A", children));
    EXPECT_FALSE(node->getAllConfigNodeList(children));
    EXPECT_FALSE(node->getNodeName(chars));
    EXPECT_EQ(nullptr, node->getXmlNode());
    node->cleanChildren();
    EXPECT_EQ(7, integer);
    EXPECT_EQ("old", chars);
    EXPECT_EQ(1U, children.size());
}

// Built from the inside out, as writers do. Deleted level by level this would take some 20 MB of stack.
TEST(DomainXmlNode, FreesATreeOfAnyDepth)
{
    Node node = make("Innermost");
    for (int level = 0; level < 200000; ++level)
    {
        Node outer = make("Outer");
        ASSERT_TRUE(outer->addConfigNode(node));
        node = outer;
    }
    node->cleanChildren();
    EXPECT_EQ("<Outer />\n", text(node));

    node = make("Innermost");
    for (int level = 0; level < 200000; ++level)
    {
        Node outer = make("Outer");
        ASSERT_TRUE(outer->addConfigNode(node));
        node = outer;
    }
}
