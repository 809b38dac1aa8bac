#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// One alarm input of a device: the "AlarmInStatistic" document.
///
/// A missing attribute resets its field, but a missing "AlarmInStatus" gives 1.
class AlarmInStatisticXml : public IDomainXml
{
public:
    AlarmInStatisticXml();
    ~AlarmInStatisticXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInStatistic(const AlarmInStatistic& input) { input_ = input; }
    AlarmInStatistic& getAlarmInStatistic() { return input_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmInStatistic& input);
    static bool readElement(const TiXmlElement& element, AlarmInStatistic& input);
    /// @}

private:
    AlarmInStatistic input_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
