#pragma once

namespace refhost {

/// What a company needs for a delivery note of one line, in the engines' common SQL: one warehouse, one supplier, one
/// item ("Mléko", unit "ks") and the rate "12 %", each with the id 1.
inline constexpr const char* c_OneItemRows =
    "insert into SKLAD (NAZEV) values ('Hlavní sklad');"
    "insert into DODAVATEL (JMENO) values ('Mlékárna');"
    "insert into DPH (NAZEV, SAZBA, PLATIOD) values ('12 %', 12, '2024-01-01');"
    "insert into SKUPSPOL1 (NAZEV) values ('Potraviny');"
    "insert into SKUPSPOL2 (SSP1ID, NAZEV) values (1, 'Mléčné výrobky');"
    "insert into SKUPSPOL3 (SSP2ID, NAZEV) values (1, 'Mléka');"
    "insert into SKLADPOL (NAZEV, SSP3ID, DPHID) values ('Mléko', 1, 1);"
    "insert into SKPL (SKLPID, PORADI, NAZEV, FAKTOR) values (1, 0, 'ks', 1);";

} // namespace refhost
