-- The value of a parameter of the company as text; null when there is none.
--
-- in: section
-- in: name

select HODNOTA from GLOBALPARAM where SEKCE = :section and NAZEV = :name;
