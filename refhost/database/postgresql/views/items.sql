-- A stock item as the fills need it: its groups' names and its units, null where it has none.
create view ITEM_V as
select i.ID as SKLPID, i.NAZEV as SKLADPOL, i.DPHID, i.TRVANLIVOSTDNU, i.AKTIVNI,
       g1.ID as SSP1ID, g1.NAZEV as SKUPSPOL1, g2.ID as SSP2ID, g2.NAZEV as SKUPSPOL2, g3.ID as SSP3ID,
       g3.NAZEV as SKUPSPOL3,
       hl.ID as SKPLIDHL, hl.NAZEV as JEDNOTKYHL, v1.ID as SKPLIDV1, v1.NAZEV as JEDNOTKYV1, v2.ID as SKPLIDV2,
       v2.NAZEV as JEDNOTKYV2
from SKLADPOL i
join SKUPSPOL3 g3 on g3.ID = i.SSP3ID
join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID
join SKUPSPOL1 g1 on g1.ID = g2.SSP1ID
left join SKPL hl on hl.SKLPID = i.ID and hl.PORADI = 0
left join SKPL v1 on v1.SKLPID = i.ID and v1.PORADI = 1
left join SKPL v2 on v2.SKLPID = i.ID and v2.PORADI = 2;
