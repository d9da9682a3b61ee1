#include "files/FarZoneOutput.h"

#include "Text.h"
#include "files/CsvWriter.h"
#include "files/OutputFile.h"
#include "quarn/DataFileWriter.h"

namespace quarn::tool {

void writeRecords(const QString& path, const FarZoneRecords& records) {
    writeFile(path, [&records](const QString& made) {
        DataFileWriter writer;
        bool isWritten = writer.open(made, text("wb"));
        for (const auto& record : records) isWritten = isWritten && FarZoneSSFieldFile::writeRecord(writer, record);
        return writer.close() && isWritten;
    });
}

void writeTable(const QString& path, const FarZoneRecords& records, const RadiatedPower& power) {
    QByteArray table;
    {
        CsvWriter csv(table);
        csv.addHeader("theta_deg,phi_deg,e_theta_re,e_theta_im,e_phi_re,e_phi_im,directivity_dbi,axial_ratio_db");
        for (const auto& record : records) {
            csv.addRow(static_cast<float>(toDegrees(record.theta)),
                       static_cast<float>(toDegrees(record.phi)),
                       record.eTheta,
                       record.ePhi,
                       static_cast<float>(power.directivity(record)),
                       static_cast<float>(axialRatio(record)));
        }
    }
    writeFile(path, table);
}

}  // namespace quarn::tool
