-- What the delivery-note editor needs before it opens: the user and whether local VAT is on; the VAT rates that are
-- valid today, by rate; the warehouses. Refuses nothing.
--
-- returns: UZIVATEL, DPHBLIC
-- returns: NAZEV
-- returns: NAZEV

select current_user_name() as UZIVATEL,
       coalesce(V_GetGlobalParam('DPH', 'DPHBLIC'), '0') = '1' as DPHBLIC;

select NAZEV
from DPH
where PLATIOD <= today() and (PLATIDO is null or PLATIDO >= today())
order by cast(SAZBA as real);

select NAZEV from SKLAD_V order by NAZEV;
