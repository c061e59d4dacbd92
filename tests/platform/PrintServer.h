// A print server with two printers, "Office" and "Attic", which the toolkit finds by the network as it finds any other.
// It prints nothing, and tells what it was sent; Office is the default one. It understands as much of the Internet
// Printing Protocol (RFC 8010, RFC 8011) as the toolkit's client asks.
#pragma once

#include <QHash>
#include <QMutex>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <memory>

/// A document as it arrives at the printer.
struct PrintedJob {
    QHash<QByteArray, QByteArray> Settings; ///< by name, the values as they are sent
    QByteArray Pdf;
    int Number(const char *name) const ///< of a setting; 0 where it was not sent
    {
        int number = 0;
        for (const char byte : Settings.value(name))
            number = number * 256 + quint8(byte);
        return number;
    }
};

class PrintServer
{
public:
    /// From here on the program's printers are those of this server.
    PrintServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(m_server.serverPort()));
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { Receive(); });
        // The client waits for its answers and would not let the server work beside it.
        m_server.moveToThread(&m_thread);
        m_thread.start();
    }
    ~PrintServer()
    {
        QMetaObject::invokeMethod(
            &m_server, [this] { m_server.moveToThread(QCoreApplication::instance()->thread()); },
            Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(PrintServer)

    QList<PrintedJob> TakeJobs()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_jobs, {});
    }
    /// Takes the printers away, as when the server is switched off, or gives them back.
    void SetPresent(bool on)
    {
        const QMutexLocker lock(&m_mutex);
        m_isPresent = on;
    }

private:
    enum Operation {
        SendDocument = 0x0006,
        CreateJob = 0x0005,
        GetPrinterAttributes = 0x000B,
        GetDefault = 0x4001,
        GetPrinters = 0x4002
    };
    enum Group { OperationGroup = 1, JobGroup = 2, EndOfGroups = 3, PrinterGroup = 4 };
    enum Tag { Integer = 0x21, Boolean = 0x22, Enum = 0x23, Text = 0x41, Name = 0x42, Keyword = 0x44, Uri = 0x45 };

    static QByteArray Bytes(int number, int count)
    {
        QByteArray bytes;
        for (int shift = 8 * (count - 1); shift >= 0; shift -= 8)
            bytes += char(number >> shift);
        return bytes;
    }
    static QByteArray Value(int tag, const QByteArray &name, const QByteArray &value)
    {
        return char(tag) + Bytes(int(name.size()), 2) + name + Bytes(int(value.size()), 2) + value;
    }

    /// What a client has sent and nobody has answered yet.
    struct Requests {
        QByteArray Bytes;
        bool IsEncouraged = false; ///< the first of them was answered with a 100, for which its client waits
    };

    void Receive()
    {
        QTcpSocket *client = m_server.nextPendingConnection();
        const auto pending = std::make_shared<Requests>();
        QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, pending] {
            pending->Bytes += client->readAll();
            while (AnswerOne(*client, *pending)) {
            }
        });
        QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    }

    static QByteArray Field(const QByteArray &head, const QByteArray &name)
    {
        const qsizetype found = head.indexOf("\r\n" + name + ':');
        const qsizetype start = found + name.size() + 3;
        return found < 0 ? QByteArray() : head.mid(start, head.indexOf('\r', start) - start).trimmed();
    }

    /// Answers one request of HTTP if it is there whole, and takes it out of what is pending.
    bool AnswerOne(QTcpSocket &client, Requests &requests)
    {
        QByteArray &pending = requests.Bytes;
        const qsizetype headEnd = pending.indexOf("\r\n\r\n");
        if (headEnd < 0)
            return false;
        const QByteArray head = pending.left(headEnd + 2).toLower();
        if (Field(head, "expect") == "100-continue" && !requests.IsEncouraged)
            client.write("HTTP/1.1 100 Continue\r\n\r\n");
        requests.IsEncouraged = true;
        QByteArray body;
        qsizetype end = headEnd + 4;
        if (Field(head, "transfer-encoding") == "chunked") {
            for (qsizetype size = -1; size != 0;) {
                const qsizetype line = pending.indexOf("\r\n", end);
                if (line < 0)
                    return false;
                size = pending.mid(end, line - end).toLongLong(nullptr, 16);
                end = line + 2 + size + 2;
                if (pending.size() < end)
                    return false;
                body += pending.mid(line + 2, size);
            }
        } else {
            const qsizetype size = Field(head, "content-length").toLongLong();
            if (pending.size() < end + size)
                return false;
            body = pending.mid(end, size);
            end += size;
        }
        pending.remove(0, end);
        requests.IsEncouraged = false;
        if (head.startsWith("post "))
            Reply(client, "application/ipp", Answer(body));
        else
            Reply(client, "application/vnd.cups-ppd", Description);
        return true;
    }

    static void Reply(QTcpSocket &client, const QByteArray &type, const QByteArray &body)
    {
        client.write("HTTP/1.1 200 OK\r\nContent-Type: " + type +
                     "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }

    QByteArray Answer(const QByteArray &request)
    {
        const int operation = quint8(request[2]) * 256 + quint8(request[3]);
        const QMutexLocker lock(&m_mutex);
        const int notFound = 0x0406;
        QByteArray answer = Bytes(0x0200, 2) + Bytes(m_isPresent ? 0 : notFound, 2) + request.mid(4, 4);
        answer += char(OperationGroup);
        answer += Value(0x47, "attributes-charset", "utf-8") + Value(0x48, "attributes-natural-language", "en");
        if (m_isPresent && (operation == SendDocument || operation == CreateJob)) {
            Take(operation, request);
            answer += char(JobGroup);
            answer += Value(Integer, "job-id", Bytes(1, 4)) + Value(Enum, "job-state", Bytes(3, 4));
        } else if (m_isPresent) {
            answer += PrinterValues(request.contains("/printers/Attic") ? "Attic" : "Office");
            if (operation == GetPrinters)
                answer += PrinterValues("Attic");
        }
        return answer + char(EndOfGroups);
    }

    QByteArray PrinterValues(const QByteArray &name) const
    {
        constexpr int bothSides = 0x10, inColour = 0x08;
        const QByteArray address = "ipp://localhost:" + QByteArray::number(m_server.serverPort()) + "/printers/" + name;
        return char(PrinterGroup) + Value(Name, "printer-name", name) + Value(Uri, "printer-uri-supported", address) +
               Value(Enum, "printer-type", Bytes(bothSides + inColour, 4)) + Value(Enum, "printer-state", Bytes(3, 4)) +
               Value(Text, "printer-info", name + " printer") +
               Value(Boolean, "printer-is-accepting-jobs", Bytes(1, 1)) +
               Value(Text, "printer-make-and-model", "Test") + Value(Keyword, "printer-state-reasons", "none");
    }

    /// Keeps the settings of a job, or the document that belongs to them.
    void Take(int operation, const QByteArray &request)
    {
        if (operation == SendDocument) {
            m_jobs.last().Pdf = request.mid(request.indexOf("%PDF"));
            return;
        }
        PrintedJob job;
        const auto number = [&](qsizetype at) {
            return qsizetype(quint8(request[at])) * 256 + quint8(request[at + 1]);
        };
        for (qsizetype at = 8; at < request.size() && request[at] != EndOfGroups;) {
            if (quint8(request[at]) < 0x10) { // the next group
                ++at;
                continue;
            }
            const qsizetype nameSize = number(at + 1), valueAt = at + 5 + nameSize,
                            valueSize = number(at + 3 + nameSize);
            job.Settings[request.mid(at + 3, nameSize)] = request.mid(valueAt, valueSize);
            at = valueAt + valueSize;
        }
        m_jobs += job;
    }

    /// What the printer can do: two sizes of paper, both sides of it, with and without colour.
    static constexpr const char *Description = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "OFFICE.PPD"
*Product: "(Office)"
*PSVersion: "(3010.000) 0"
*Manufacturer: "Test"
*ModelName: "Office"
*ShortNickName: "Office"
*NickName: "Office"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsFilter: "application/vnd.cups-pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*PageSize A5/A5: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*PageRegion A5/A5: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "10 10 585 832"
*ImageableArea A5/A5: "10 10 410 585"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension A5/A5: "420 595"
*OpenUI *Duplex/Two-Sided: PickOne
*DefaultDuplex: None
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long-Edge: ""
*Duplex DuplexTumble/Short-Edge: ""
*CloseUI: *Duplex
*OpenUI *ColorModel/Color: PickOne
*DefaultColorModel: RGB
*ColorModel RGB/Color: ""
*ColorModel Gray/Gray: ""
*CloseUI: *ColorModel
)ppd";

    QThread m_thread;
    QTcpServer m_server;
    QMutex m_mutex;
    QList<PrintedJob> m_jobs;
    bool m_isPresent = true;
};
