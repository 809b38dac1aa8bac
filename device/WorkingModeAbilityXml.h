#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The modes in which a device can work: the "WorkingModeAbility" element of other documents.
///
/// It is a child only: its string operations do nothing. Reading replaces the list. Every child of "WorkingModeList"
/// counts as an item, whatever its name, and a missing attribute leaves 0 or empty in it. A missing "WorkingModeList"
/// gives false, and the list is as it was; an empty one is an empty list.
class WorkingModeAbilityXml : public IDomainXml
{
public:
    WorkingModeAbilityXml();
    ~WorkingModeAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set,
    /// and null without either. One that was made lives until the next is, or until the codec dies; one that was set is
    /// its owner's.
    /// @{
    void setWorkingModeAbility(const std::vector<WorkingMode>& modes) { modes_ = modes; }
    std::vector<WorkingMode>& getWorkingModeAbility() { return modes_; }
    void createXmlNode();
    /// Does nothing; true.
    bool createXmlString();
    /// Does nothing; true.
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<WorkingMode>& modes);
    static bool readElement(const TiXmlElement& element, std::vector<WorkingMode>& modes);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const std::vector<WorkingMode>& modes);

    std::vector<WorkingMode> modes_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
