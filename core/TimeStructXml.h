#pragma once

#include "core/IDomainXml.h"
#include "domain/CoreRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// A point in time, inside other documents under a name that they choose, or on its own as the "TimeStruct" document.
///
/// A missing attribute leaves its field where elements are read, and resets it where nodes and texts are read.
class TimeStructXml : public IDomainXml
{
public:
    TimeStructXml();
    ~TimeStructXml() override;

    /// @name Elements
    /// @{

    /// Appends an element named @p name to @p parent; false if that is null.
    bool createTimeStruct(const TimeStruct& time, const std::string& name, TiXmlNode* parent) const;
    /// Reads the first child of @p parent named @p name; false, with @p time as it was, if there is none.
    bool parseTimeStruct(const TiXmlElement* parent, const std::string& name, TimeStruct& time) const;

    static TiXmlElement& writeElement(TiXmlNode& parent, const char* name, const TimeStruct& time);
    static bool readElement(const TiXmlElement& element, TimeStruct& time);
    /// @}

    /// @name Nodes and texts
    /// @{

    /// Adds a child named @p name to @p parent; false if that is empty.
    bool createTimeStruct(const TimeStruct& time, const std::string& name, SafePointer<DomainXmlNode>& parent) const;
    /// Reads the first child of @p parent named @p name; false, with @p time as it was, if there is none.
    bool parseTimeStruct(const SafePointer<DomainXmlNode>& parent, const std::string& name, TimeStruct& time) const;

    bool createXmlString(const TimeStruct& time, std::string& text) const;
    bool parseXmlString(const std::string& text, TimeStruct& time) const;
    /// @}

private:
    static void writeNode(const TimeStruct& time, SafePointer<DomainXmlNode>& node);
    static void readNode(const SafePointer<DomainXmlNode>& node, TimeStruct& time);
};
