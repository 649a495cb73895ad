-- The number of an order that a save makes, by the year in which it was ordered and a serial number.
--
-- in: ordered
-- in: serial

select 'OV' || substr(:ordered, 1, 4) || '-' || substr('000000' || :serial, -max(6, length(:serial)));
