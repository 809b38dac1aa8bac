#include "bench/CameraDeviceFloor.h"

#include "bench/Floor.h"

#include <string>
#include <utility>

std::vector<CameraDevice> makeCameras(int count)
{
    std::vector<CameraDevice> cameras;
    for (int id = 1; id <= count; ++id)
    {
        CameraDevice camera;
        camera.setCameraId(id);
        camera.setCameraName("Car park, camera " + std::to_string(id));
        camera.setCameraModel("Dome-4K-" + std::to_string(id % 3));
        camera.setVideoSystem(id % 2);
        cameras.push_back(camera);
    }
    return cameras;
}

namespace bare
{

void writeCameras(TiXmlElement& list, const std::vector<CameraDevice>& cameras)
{
    for (const CameraDevice& camera : cameras)
    {
        TiXmlElement& element = appendElement(list, "CameraDevice");
        element.SetAttribute("CameraId", camera.getCameraId());
        element.SetAttribute("CameraName", camera.getCameraName().c_str());
        element.SetAttribute("CameraModel", camera.getCameraModel().c_str());
        element.SetAttribute("VideoSystem", camera.getVideoSystem());
    }
}

void readCameras(const TiXmlElement* item, std::vector<CameraDevice>& cameras)
{
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraDevice camera;
        camera.setCameraId(intOf(*item, "CameraId", 0));
        camera.setCameraName(textOf(*item, "CameraName"));
        camera.setCameraModel(textOf(*item, "CameraModel"));
        camera.setVideoSystem(intOf(*item, "VideoSystem", 0));
        cameras.push_back(std::move(camera));
    }
}

} // namespace bare
