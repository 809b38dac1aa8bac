#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// The memory of a device: the "MemStatistic" document.
///
/// A missing attribute resets its field.
class MemStatisticXml : public IDomainXml
{
public:
    MemStatisticXml();
    ~MemStatisticXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMemStatistic(const MemStatistic& memory) { memory_ = memory; }
    MemStatistic& getMemStatistic() { return memory_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MemStatistic& memory);
    static bool readElement(const TiXmlElement& element, MemStatistic& memory);
    /// @}

private:
    MemStatistic memory_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
