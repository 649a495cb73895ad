-- What an order line orders, in the item's main unit: the measure of what is delivered on it.
--
-- in: line

select dec_round(dec_mul(p.MNOZSTVI, j.FAKTOR), 6)
from DODOBJPOL p
join SKPL j on j.ID = p.SKPLID
where p.ID = :line;
