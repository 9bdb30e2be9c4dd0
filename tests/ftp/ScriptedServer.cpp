#include "tests/ftp/ScriptedServer.h"

ScriptedServer::ScriptedServer()
{
    m_server.listen(QHostAddress::LocalHost);
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        m_control = m_server.nextPendingConnection();
        connect(m_control, &QTcpSocket::readyRead, this, &ScriptedServer::readLines);
        m_directory = "/";
        reply("220 ready");
    });
    connect(&m_foreign, &QTcpServer::newConnection, this, [this] { ++strangers; });
}

void ScriptedServer::hangUp()
{
    m_control->abort();
}

void ScriptedServer::readLines()
{
    while (m_control && m_control->canReadLine()) {
        const QByteArray line = m_control->readLine().chopped(2);
        commands << QString::fromLatin1(line);
        const qsizetype blank = line.indexOf(' ');
        command(line.first(blank < 0 ? line.size() : blank), blank < 0 ? QByteArray() : line.mid(blank + 1));
    }
}

void ScriptedServer::command(const QByteArray &word, const QByteArray &argument)
{
    static const QMap<QByteArray, QByteArray> fixed{{"USER", "331 who"},  {"TYPE", "200 ok"},  {"CDUP", "250 ok"},
                                                    {"MKD", "257 made"},  {"RMD", "250 gone"}, {"DELE", "250 gone"},
                                                    {"RNFR", "350 to"},   {"RNTO", "250 ok"},  {"QUIT", "221 bye"},
                                                    {"EPSV", "500 what"}, {"AUTH", "502 no"}};
    if (word == "PASS")
        ++logins;
    if (word == "CWD")
        m_directory = argument;
    if (word == "REST")
        m_offset = argument.toLongLong();
    if (replies.contains(word))
        reply(replies[word]);
    else if (word == "PASS")
        reply("230 in");
    else if (word == "CWD")
        reply("250 ok");
    else if (word == "PWD")
        reply("257 \"" + m_directory + "\" is it");
    else if (word == "REST")
        reply("350 from there");
    else if (word == "PASV")
        passive();
    else if (word == "LIST" || word == "RETR" || word == "STOR" || word == "APPE")
        transfer(word, argument);
    else
        reply(fixed.value(word, "502 unknown"));
}

void ScriptedServer::passive()
{
    m_dataServer.close();
    m_dataServer.listen(QHostAddress::LocalHost);
    const quint16 port = m_dataServer.serverPort();
    QByteArray host = "127,0,0,1";
    if (fault == ForeignAddress) {
        m_foreign.close();
        m_foreign.listen(QHostAddress(QStringLiteral("127.0.0.2")), port);
        host = "127,0,0,2";
    }
    if (fault == ClosedDataPort)
        m_dataServer.close();
    reply("227 at (" + host + ',' + QByteArray::number(port / 256) + ',' + QByteArray::number(port % 256) + ')');
}

void ScriptedServer::transfer(const QByteArray &word, const QByteArray &argument)
{
    if (!m_dataServer.hasPendingConnections())
        m_dataServer.waitForNewConnection(5000);
    m_data = m_dataServer.nextPendingConnection();
    const qsizetype offset = std::exchange(m_offset, 0);
    if (word == "LIST") {
        send(listing, false);
        return;
    }
    if (word == "RETR") {
        if (files.contains(argument))
            send(files[argument].mid(offset), true);
        else
            reply("550 no such file");
        return;
    }
    reply("150 send");
    if (word == "STOR")
        files[argument].clear();
    const auto receive = [this, argument] { files[argument] += m_data->readAll(); };
    connect(m_data, &QTcpSocket::readyRead, this, receive);
    connect(m_data, &QTcpSocket::disconnected, this, [this, receive] {
        receive();
        finish();
    });
}

void ScriptedServer::send(const QByteArray &data, bool announced)
{
    reply("150 here" + (announced ? " (" + QByteArray::number(data.size()) + " bytes)" : QByteArray()));
    const bool isHalf = fault == CutConnection || fault == CutData || fault == Stall || fault == ShortDownload;
    m_data->write(announced && isHalf ? data.first(data.size() / 2) : data);
    m_data->flush();
    if (announced && fault == Stall)
        return;
    m_data->disconnectFromHost();
    announced ? finish() : reply("226 listed");
}

void ScriptedServer::finish()
{
    if (fault == CutConnection)
        hangUp();
    else if (fault == CutData)
        reply("426 cut");
    else if (fault == DiskFull)
        reply("552 disk full");
    else if (fault == EndlessReply)
        reply("226-" + QByteArray(1000000, 'x').replace("xxxxxxxxxx", "226-x\r\n"));
    else if (fault != NoClosingReply)
        reply(fault == DoubledReply ? "226 done\r\n226 done" : "226 done");
}
