#pragma once

#include "support/LocalServer.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

/// A column store. Its client finds it by the home directory that this gives.
class ClickHouseServer : public LocalServer
{
public:
    ClickHouseServer()
    {
        write("server.xml",
              "<yandex><logger><level>warning</level><console>true</console></logger>"
              "<tcp_port>%1</tcp_port><listen_host>127.0.0.1</listen_host>"
              "<path>%2/data/</path><tmp_path>%2/tmp/</tmp_path>"
              "<mark_cache_size>500000000</mark_cache_size><timezone>UTC</timezone>"
              "<users_config>%2/server.xml</users_config>"
              "<default_profile>default</default_profile>"
              "<default_database>default</default_database>"
              "<profiles><default/></profiles><quotas><default/></quotas><users><default>"
              "<password>a secret</password><networks><ip>127.0.0.1</ip></networks>"
              "<profile>default</profile><quota>default</quota></default></users></yandex>");
        QDir(home()).mkdir(".clickhouse-client");
        write(".clickhouse-client/config.xml",
              "<config><host>127.0.0.1</host><port>%1</port><user>default</user>"
              "<password>a secret</password></config>");
        mProcess.setWorkingDirectory(home());
        mProcess.setStandardOutputFile(QProcess::nullDevice());
        mProcess.setStandardErrorFile(mFolder.filePath("server.log"));
        mProcess.setChildProcessModifier(dieWithParent);
        mProcess.start("/usr/sbin/clickhouse-server",
                       {"--config-file=" + mFolder.filePath("server.xml")});
        waitUntilReady();
    }
    ~ClickHouseServer() override { signalAndWait(SIGTERM); }

    QString home() const { return mFolder.path(); }

private:
    /// "%1" stands for the port, "%2" for the folder.
    void write(const QString& name, QString text) const
    {
        text.replace("%1", QString::number(mPort)).replace("%2", home());
        QFile file(mFolder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
            qFatal("could not write %s", qPrintable(name));
        }
    }

    bool isReady() const override
    {
        return succeeds("clickhouse-client",
                        {"--config-file=" + mFolder.filePath(".clickhouse-client/config.xml"),
                         "--query=SELECT 1"});
    }
};
