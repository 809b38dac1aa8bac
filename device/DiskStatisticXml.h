#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// One disk of a device: the "DiskStatistic" document.
///
/// A missing attribute resets its field.
class DiskStatisticXml : public IDomainXml
{
public:
    DiskStatisticXml();
    ~DiskStatisticXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDiskStatistic(const DiskStatistic& disk) { disk_ = disk; }
    DiskStatistic& getDiskStatistic() { return disk_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DiskStatistic& disk);
    static bool readElement(const TiXmlElement& element, DiskStatistic& disk);
    /// @}

private:
    DiskStatistic disk_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
