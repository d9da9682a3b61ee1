#include "files/FarZoneOutput.h"

#include "files/CsvWriter.h"
#include "files/OutputFile.h"
#include "quarn/DataFileWriter.h"

namespace quarn::tool {

void writeRecords(const QString& path, const FarZoneRecords& records) {
    writeFile(path, [&records](const QString& made) {
        DataFileWriter writer;
        bool isWritten = writer.open(made, QStringLiteral("wb"));
        for (const auto& record : records) isWritten = isWritten && FarZoneSSFieldFile::writeRecord(writer, record);
        return writer.close() && isWritten;
    });
}

void writeTable(const QString& path, const FarZoneRecords& records, const RadiatedPower& power) {
    QByteArray text;
    {
        CsvWriter csv(text);
        csv.addHeader({QStringLiteral("theta_deg"),
                       QStringLiteral("phi_deg"),
                       QStringLiteral("e_theta_re"),
                       QStringLiteral("e_theta_im"),
                       QStringLiteral("e_phi_re"),
                       QStringLiteral("e_phi_im"),
                       QStringLiteral("directivity_dbi"),
                       QStringLiteral("axial_ratio_db")});
        for (const auto& record : records) {
            csv.add(static_cast<float>(toDegrees(record.theta)));
            csv.add(static_cast<float>(toDegrees(record.phi)));
            csv.add(record.eTheta);
            csv.add(record.ePhi);
            csv.add(static_cast<float>(power.directivity(record)));
            csv.add(static_cast<float>(axialRatio(record)));
            csv.endRow();
        }
    }
    writeFile(path, text);
}

}  // namespace quarn::tool
