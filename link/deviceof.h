// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/device.h"
#include "model/setting.h"

#include <functional>
#include <memory>
#include <vector>

/// An instrument whose configuration is described by a table: \a Config is a DeviceConfigOf and names its Product.
template <class Config> class DeviceOf : public Device
{
public:
    /// The object of a file, with no port.
    explicit DeviceOf(Manners manners = {}) : Device(Config::Product, manners) { setConfig(new Config); }
    /// The object on the port of \a plain.
    explicit DeviceOf(const Device &plain, Manners manners = {}) : Device(plain, manners) { setConfig(new Config); }

    int acquireServiceConfig() override { return queryServiceConfig(); }

    /// Reads the settings in the order of the table; the first that fails leaves config() as it was.
    int acquireConfiguration() override
    {
        auto read = std::make_unique<Config>();
        for (const auto &setting : Config::settings()) {
            if (!isAvailable(setting))
                continue;
            const Reply reply = askSetting(setting.command);
            if (reply.code != DeviceSuccessful)
                return reply.code;
            setting.read(*read, reply.data);
        }
        const int code = acquireFurther(*read);
        if (code == DeviceSuccessful)
            setConfig(read.release());
        return code;
    }

    /// Writes the settings in the order of the table, up to the first that fails: those before it stay changed.
    int sndConfiguration() override
    {
        // All values are taken before the first wait: another configuration may take the place of this one during it.
        const auto &config = static_cast<const Config &>(*this->config());
        std::vector<Order> orders;
        for (const auto &setting : Config::settings()) {
            if (isAvailable(setting))
                orders.push_back({setting.command, setting.wire(config), setting.readBack});
        }
        const auto further = furtherOrder(config);
        for (const Order &order : orders) {
            const int code = sendSetting(order);
            if (code != DeviceSuccessful)
                return code;
        }
        return further ? further() : DeviceSuccessful;
    }

protected:
    /// Reads what the table has no command for.
    virtual int acquireFurther(Config &) { return DeviceSuccessful; }
    /// What sends the values of \a config that the table has no command for; nothing when there are none.
    virtual std::function<int()> furtherOrder(const Config &) { return {}; }

private:
    template <class Row> bool isAvailable(const Row &setting) const
    {
        return setting.command && (setting.serviceBit == 0 || (serviceConfig() & setting.serviceBit));
    }
};
